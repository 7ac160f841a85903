#ifndef TESSALY_TESTS_END_TO_END_DISK_TEST_H_
#define TESSALY_TESTS_END_TO_END_DISK_TEST_H_

#include "tests/end_to_end/end_to_end_test.h"
#include "tests/support/small_disk.h"

namespace tessaly::test {

inline constexpr QLatin1StringView kDiskFull{"Disk full"};
inline constexpr QLatin1StringView kPermissionDenied{"Permission denied"};

// A base of its own, so that it is there before the program folder that is made on it.
struct DiskOfItsOwn {
  static constexpr int kKibibytes = 48 * 1024;
  SmallDisk disk{kKibibytes};
};

enum class ProgramFolderIs { OnTheDisk, Elsewhere };

// An installation and a disk that can be full or read-only, on which a part of it may lie.
class DiskTest : protected DiskOfItsOwn, public EndToEndTest {
protected:
  explicit DiskTest(ProgramFolderIs place = ProgramFolderIs::Elsewhere)
      : EndToEndTest(place == ProgramFolderIs::OnTheDisk ? disk.Folder() : QDir::tempPath()) {}

  void SetUp() override { SKIP_UNLESS_MOUNTED(disk); }
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_DISK_TEST_H_
