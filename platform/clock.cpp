#include "platform/clock.h"

#include <QThread>

namespace tessaly {

QDateTime SystemClock::Now() const {
  return QDateTime::currentDateTime();
}

void SystemClock::Sleep(int milliseconds) {
  QThread::msleep(static_cast<unsigned long>(milliseconds));
}

}  // namespace tessaly
