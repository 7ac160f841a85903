#include "platform/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace tessaly {

InstanceLock::InstanceLock(const QString& path) {
  static_cast<void>(QDir().mkpath(QFileInfo(path).absolutePath()));
  constexpr int kOwnerOnly = 0600;
  handle_ = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerOnly);
  heldByAnother_ = handle_ >= 0 && ::flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
  if (handle_ >= 0) {
    ::close(handle_);
  }
}

QString InstanceLock::DefaultPath() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(u".tessaly-2002.lock"_s);
}

}  // namespace tessaly
