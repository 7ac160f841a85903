#ifndef TESSALY_TESTS_SUPPORT_SMALL_DISK_H_
#define TESSALY_TESTS_SUPPORT_SMALL_DISK_H_

#include <gtest/gtest.h>

#include <QString>
#include <QTemporaryDir>

namespace tessaly::test {

// Where a volume is mounted: in a temporary folder, or where the desktop mounts what is plugged in,
// so that the program takes it for a removable drive. The machine's own removable drives are then
// out of sight: no test may write to them.
enum class DiskPlace { Temporary, Media };

// A volume of its own that can be full or read-only. Only root can mount one; only this process and
// those that it starts see it, and it is gone with them.
class SmallDisk {
public:
  explicit SmallDisk(int kibibytes, DiskPlace place = DiskPlace::Temporary);
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk();

  [[nodiscard]] bool IsMounted() const { return mounted_; }
  [[nodiscard]] QString Folder() const { return folder_.path(); }
  [[nodiscard]] QString FilePath(const QString& name) const { return folder_.filePath(name); }

  // Takes all the room that is left, or all but some of it, and gives it back.
  void Fill(qint64 bytesLeft = 0);
  void Free();
  void SetReadOnly(bool readOnly);
  // Pulls the volume out with all that is on it: its folder stays, empty and on another volume.
  void TakeOut();

private:
  [[nodiscard]] QString BallastPath() const;

  QTemporaryDir folder_;
  bool mounted_ = false;
};

// Ends a test that cannot do without the volume.
#define SKIP_UNLESS_MOUNTED(disk)                                 \
  if (!(disk).IsMounted()) {                                      \
    GTEST_SKIP() << "only root can mount a volume for this test"; \
  }                                                               \
  static_assert(true, "a semicolon follows")

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_SMALL_DISK_H_
