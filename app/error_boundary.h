#ifndef TESSALY_APP_ERROR_BOUNDARY_H_
#define TESSALY_APP_ERROR_BOUNDARY_H_

#include <QString>
#include <functional>

namespace tessaly {

class MessageBoxes;
class RuntimeError;

// "Run-time error '53':", the error's text, what was being done, and the file or value concerned.
[[nodiscard]] QString ErrorMessage(const RuntimeError& error, const QString& doing);

// The one place where a RuntimeError ends: every command, event and timer of the windows runs
// through it, so that a failure abandons the command, tells the user and leaves the program
// running.
class ErrorBoundary {
public:
  explicit ErrorBoundary(MessageBoxes& boxes) : boxes_(boxes) {}

  // Runs the work; `doing` completes "While ...". False when it failed and the user was told.
  bool Run(const QString& doing, const std::function<void()>& work);

private:
  MessageBoxes& boxes_;
};

}  // namespace tessaly

#endif  // TESSALY_APP_ERROR_BOUNDARY_H_
