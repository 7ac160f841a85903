#include "tests/support/small_disk.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

#include <QDir>
#include <QFile>

#include "platform/drives.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

// From here on what this process mounts is seen by nobody else.
bool HaveOwnMounts() {
  static const bool own = ::unshare(CLONE_NEWNS) == 0 &&
                          ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
  return own;
}

bool MountVolume(const QString& folder, const QByteArray& options) {
  return HaveOwnMounts() && ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0,
                                    options.constData()) == 0;
}

void Unmount(const QString& folder) {
  ::umount2(QFile::encodeName(folder).constData(), MNT_DETACH);
}

// From here on the place of removable drives is empty.
bool HaveOwnMedia() {
  static const bool own = [] {
    if (!HaveOwnMounts()) {
      return false;
    }
    for (const Drive& drive : SystemDrives().Removable()) {
      Unmount(drive.Path);
    }
    return SystemDrives().Removable().isEmpty() && MountVolume(u"/media"_s, "size=64k");
  }();
  return own;
}

qint64 BytesLeft(const QString& folder) {
  struct statvfs volume {};
  return ::statvfs(QFile::encodeName(folder).constData(), &volume) == 0
             ? static_cast<qint64>(volume.f_bavail * volume.f_frsize)
             : 0;
}

QString FolderTemplate(DiskPlace place) {
  const bool inMedia = place == DiskPlace::Media && HaveOwnMedia();
  return (inMedia ? u"/media"_s : QDir::tempPath()) + u"/disk-XXXXXX"_s;
}

}  // namespace

SmallDisk::SmallDisk(int kibibytes, DiskPlace place) : folder_(FolderTemplate(place)) {
  mounted_ = (place == DiskPlace::Temporary || HaveOwnMedia()) &&
             MountVolume(Folder(), "size=" + QByteArray::number(kibibytes) + "k");
}

SmallDisk::~SmallDisk() {
  TakeOut();
}

void SmallDisk::TakeOut() {
  if (mounted_) {
    Unmount(Folder());
    mounted_ = false;
  }
}

void SmallDisk::Fill(qint64 bytesLeft) {
  QFile ballast(BallastPath());
  const QByteArray block(4096, 'b');
  if (!ballast.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
    ADD_FAILURE() << "the ballast cannot be written";
    return;
  }
  while (BytesLeft(Folder()) > bytesLeft && ballast.write(block) == block.size()) {
  }
}

void SmallDisk::Free() {
  EXPECT_TRUE(QFile::remove(BallastPath()));
}

void SmallDisk::SetReadOnly(bool readOnly) {
  const unsigned long flags = readOnly ? MS_REMOUNT | MS_RDONLY : MS_REMOUNT;
  EXPECT_EQ(::mount(nullptr, QFile::encodeName(Folder()).constData(), nullptr, flags, nullptr), 0);
}

QString SmallDisk::BallastPath() const {
  return FilePath(u"ballast"_s);
}

}  // namespace tessaly::test
