#include "tests/support/small_disk.h"

#include <sched.h>
#include <sys/mount.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

// From here on what this process mounts is seen by nobody else.
bool HaveOwnMounts() {
  static const bool own = ::unshare(CLONE_NEWNS) == 0 &&
                          ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
  return own;
}

}  // namespace

SmallDisk::SmallDisk(int kibibytes) {
  const QByteArray size = "size=" + QByteArray::number(kibibytes) + "k";
  mounted_ = HaveOwnMounts() && ::mount("tmpfs", QFile::encodeName(Folder()).constData(), "tmpfs",
                                        0, size.constData()) == 0;
}

SmallDisk::~SmallDisk() {
  TakeOut();
}

void SmallDisk::TakeOut() {
  if (mounted_) {
    ::umount2(QFile::encodeName(Folder()).constData(), MNT_DETACH);
    mounted_ = false;
  }
}

void SmallDisk::Fill() {
  QFile ballast(BallastPath());
  const QByteArray block(4096, 'b');
  if (!ballast.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
    ADD_FAILURE() << "the ballast cannot be written";
    return;
  }
  while (ballast.write(block) == block.size()) {
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
