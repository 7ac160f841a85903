#ifndef TESSALY_PLATFORM_DESKTOP_H_
#define TESSALY_PLATFORM_DESKTOP_H_

#include <QString>

namespace tessaly {

// What the user's desktop does for a program: opening links, starting other programs.
class Desktop {
public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  // Opens a web or mail link with the program that the user has chosen for it; events are handled
  // until it is known whether that worked. False when nothing could be opened.
  [[nodiscard]] virtual bool OpenLink(const QString& link) = 0;
  // Starts a program and does not wait for it. False when it is not there or cannot be started.
  [[nodiscard]] virtual bool StartProgram(const QString& path) = 0;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_DESKTOP_H_
