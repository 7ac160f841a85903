#ifndef TESSALY_PLATFORM_INSTANCE_LOCK_H_
#define TESSALY_PLATFORM_INSTANCE_LOCK_H_

#include <QString>

namespace tessaly {

// Says whether this user already runs the program. The kernel lets go of the lock with the process,
// so that one left by a crash never stops the next start.
class InstanceLock {
public:
  // `path` of the lock file, which stays where it is; its folder is made when missing.
  explicit InstanceLock(const QString& path);
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;
  ~InstanceLock();

  // True when another process holds the lock. Where no lock file can be made (a read-only
  // configuration folder) the answer is no.
  [[nodiscard]] bool IsHeldByAnother() const { return heldByAnother_; }

  [[nodiscard]] static QString DefaultPath();

private:
  int handle_ = -1;
  bool heldByAnother_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_INSTANCE_LOCK_H_
