#ifndef TESSALY_PLATFORM_CLOCK_H_
#define TESSALY_PLATFORM_CLOCK_H_

#include <QDateTime>

namespace tessaly {

// The only source of the time, so that a test can set it.
class Clock {
public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  // Local date and time.
  [[nodiscard]] virtual QDateTime Now() const = 0;
  // Lets time pass without handling events.
  virtual void Sleep(int milliseconds) = 0;
  // Lets time pass while events are handled; less of it when the program is to end.
  virtual void Wait(int milliseconds) = 0;
};

class SystemClock : public Clock {
public:
  [[nodiscard]] QDateTime Now() const override;
  void Sleep(int milliseconds) override;
  void Wait(int milliseconds) override;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_CLOCK_H_
