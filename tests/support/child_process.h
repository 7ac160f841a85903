#ifndef TESSALY_TESTS_SUPPORT_CHILD_PROCESS_H_
#define TESSALY_TESTS_SUPPORT_CHILD_PROCESS_H_

#include <sys/types.h>

#include <QString>
#include <functional>

namespace tessaly::test {

// A copy of this process that runs `work` until it calls `standStill`, and is killed there, as a
// crash would end it: no destructor runs. This process must not have the files open that the child
// opens, because the engine would take the child's openings for its own.
class ChildProcess {
public:
  using Work = std::function<void(const std::function<void()>& standStill)>;

  explicit ChildProcess(const Work& work);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  // False when the work failed before it came to `standStill`.
  [[nodiscard]] bool StandsStill() const { return standsStill_; }
  void Kill();

private:
  pid_t pid_ = -1;
  bool standsStill_ = false;
};

// What another program sees: runs a statement on a database file in the sqlcipher shell, opened
// with the bank's password, and returns the output, errors included.
[[nodiscard]] QString AskShell(const QString& path, const QString& sql);
[[nodiscard]] bool IsShellInstalled();

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_CHILD_PROCESS_H_
