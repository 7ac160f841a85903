#include "platform/file_operations.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
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

// fsync works on folders too, where it puts the entries on the disk.
void Synchronize(const QString& path) {
  const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) {
    RaiseSystemFailure(errno, path);
  }
  const bool synchronized = ::fsync(handle) == 0;
  const int failure = errno;
  ::close(handle);
  if (!synchronized) {
    RaiseSystemFailure(failure, path);
  }
}

void SynchronizeFolderOf(const QString& path) { Synchronize(QFileInfo(path).absolutePath()); }

void WriteAll(QFile& file, const QByteArray& content) {
  // Only the flush tells of a full disk where the content fits the buffer.
  if (file.write(content) != content.size() || !file.flush()) {
    throw RuntimeError(file.error() == QFileDevice::ResourceError ? ErrorNumber::DiskFull
                                                                  : ErrorNumber::DeviceIo,
                       file.fileName());
  }
}

void CopyAcross(const QString& source, const QString& target) {
  QFile from(source);
  QFile to(target);
  if (!from.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::FileNotFound, source);
  }
  if (!to.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, target);
  }
  constexpr qint64 kBlockBytes = 1 << 20;
  while (!from.atEnd()) {
    const QByteArray block = from.read(kBlockBytes);
    if (block.isEmpty()) {
      throw RuntimeError(ErrorNumber::DeviceIo, source);
    }
    WriteAll(to, block);
  }
}

void MoveInPlace(const QString& source, const QString& target) {
  if (std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) !=
      0) {
    RaiseSystemFailure(errno, target);
  }
}

QString BesideName(const QString& target) { return target + u".new"_s; }

}  // namespace

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
  try {
    CopyAcross(source, beside);
    Synchronize(beside);
  } catch (const RuntimeError&) {
    QFile::remove(beside);
    throw;
  }
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

}  // namespace tessaly
