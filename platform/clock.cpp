#include "platform/clock.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>

namespace tessaly {

QDateTime SystemClock::Now() const {
  return QDateTime::currentDateTime();
}

void SystemClock::Sleep(int milliseconds) {
  QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void SystemClock::Wait(int milliseconds) {
  QEventLoop events;
  QTimer::singleShot(milliseconds, &events, &QEventLoop::quit);
  events.exec();
}

}  // namespace tessaly
