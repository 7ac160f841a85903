#ifndef TESSALY_PLATFORM_SYSTEM_DESKTOP_H_
#define TESSALY_PLATFORM_SYSTEM_DESKTOP_H_

#include "platform/desktop.h"

namespace tessaly {

class Clock;

// The desktop by its own opener, `xdg-open`. How the opener ends says whether it found a program;
// one that is still there after a few seconds has become the browser.
class SystemDesktop : public Desktop {
public:
  explicit SystemDesktop(Clock& clock) : clock_(clock) {}

  [[nodiscard]] bool OpenLink(const QString& link) override;
  [[nodiscard]] bool StartProgram(const QString& path) override;

private:
  Clock& clock_;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_SYSTEM_DESKTOP_H_
