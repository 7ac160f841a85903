#include "platform/file_operations.h"

#include <fcntl.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

[[noreturn]] void RaiseSystemFailure(int systemError, const QString& path) {
  switch (systemError) {
    case ENOENT:
      throw RuntimeError(ErrorNumber::FileNotFound, path);
    case ENOSPC:
    case EDQUOT:
      throw RuntimeError(ErrorNumber::DiskFull, path);
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case EISDIR:
      throw RuntimeError(ErrorNumber::PermissionDenied, path);
    default:
      throw RuntimeError(ErrorNumber::DeviceIo, path);
  }
}

// A file system that has nothing to synchronize in a folder says that it cannot.
bool SynchronizeHandle(int handle) {
  return ::fsync(handle) == 0 || errno == EINVAL;
}

// fsync works on folders too, where it puts the entries on the disk.
void Synchronize(const QString& path) {
  const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) {
    RaiseSystemFailure(errno, path);
  }
  const bool synchronized = SynchronizeHandle(handle);
  const int failure = errno;
  ::close(handle);
  if (!synchronized) {
    RaiseSystemFailure(failure, path);
  }
}

void SynchronizeFolderOf(const QString& path) {
  Synchronize(QFileInfo(path).absolutePath());
}

void WriteAll(QFile& file, const QByteArray& content) {
  // Only the flush tells of a full disk where the content fits the buffer. Where a part of it still
  // found room, the library counts that part and reports no error.
  if (file.write(content) != content.size() || !file.flush()) {
    throw RuntimeError(
        file.error() == QFileDevice::WriteError ? ErrorNumber::DeviceIo : ErrorNumber::DiskFull,
        file.fileName());
  }
}

// Each block goes to the disk at once: left to the end, the wait for a slow drive would be one long
// silence. For the same reason a block is no longer than what the drive takes in a moment.
void CopyBlocks(QFile& from, QFile& to, const std::function<void()>& afterBlock) {
  constexpr qint64 kSmallestBlock = qint64{16} * 1024;
  constexpr qint64 kLargestBlock = qint64{1024} * 1024;
  constexpr qint64 kMomentMilliseconds = 50;
  qint64 blockBytes = kSmallestBlock;
  while (!from.atEnd()) {
    QElapsedTimer timer;
    timer.start();
    const QByteArray block = from.read(blockBytes);
    if (block.isEmpty()) {
      throw RuntimeError(ErrorNumber::DeviceIo, from.fileName());
    }
    WriteAll(to, block);
    if (!SynchronizeHandle(to.handle())) {
      RaiseSystemFailure(errno, to.fileName());
    }
    blockBytes = timer.hasExpired(kMomentMilliseconds) ? std::max(blockBytes / 2, kSmallestBlock)
                                                       : std::min(blockBytes * 2, kLargestBlock);
    afterBlock();
  }
}

void OpenToRead(QFile& file) {
  if (!QFileInfo(file.fileName()).isFile()) {
    throw RuntimeError(ErrorNumber::FileNotFound, file.fileName());
  }
  if (!file.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, file.fileName());
  }
}

void MoveInPlace(const QString& source, const QString& target) {
  if (std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) !=
      0) {
    RaiseSystemFailure(errno, target);
  }
}

}  // namespace

QString BesideName(const QString& path) {
  return path + u".new"_s;
}

void FlushToDisk(const QString& path) {
  Synchronize(path);
  SynchronizeFolderOf(path);
}

void DiskFileOperations::Remove(const QString& path) {
  if (::unlink(QFile::encodeName(path).constData()) == 0) {
    SynchronizeFolderOf(path);
  } else if (errno != ENOENT) {
    RaiseSystemFailure(errno, path);
  }
}

void DiskFileOperations::Move(const QString& source, const QString& target) {
  if (std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) ==
      0) {
    SynchronizeFolderOf(target);
    return;
  }
  if (errno != EXDEV) {
    RaiseSystemFailure(errno, source);
  }
  const QString beside = BesideName(target);
  Copy(source, beside, [] {});
  MoveInPlace(beside, target);
  SynchronizeFolderOf(target);
  Remove(source);
}

void DiskFileOperations::Write(const QString& path, const QByteArray& content) {
  const QString beside = BesideName(path);
  QFile file(beside);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
  try {
    WriteAll(file, content);
    file.close();
    Synchronize(beside);
  } catch (const RuntimeError&) {
    QFile::remove(beside);
    throw;
  }
  MoveInPlace(beside, path);
  SynchronizeFolderOf(path);
}

void DiskFileOperations::Copy(const QString& source, const QString& target,
                              const std::function<void()>& afterBlock) {
  QFile from(source);
  OpenToRead(from);
  QFile to(target);
  if (!to.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, target);
  }
  try {
    CopyBlocks(from, to, afterBlock);
    to.close();
    FlushToDisk(target);
  } catch (const RuntimeError&) {
    QFile::remove(target);
    throw;
  }
}

}  // namespace tessaly
