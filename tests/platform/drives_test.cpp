#include "platform/drives.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// "8:1" and "8:2" are the system's disk, "8:17" a stick, everything else is no disk.
Disk FewDisks(const QString& device) {
  if (device.startsWith(u"8:17"_s)) {
    return {u"stick"_s, true};
  }
  return device.startsWith(u"8:"_s) ? Disk{u"system"_s, true} : Disk{};
}

[[nodiscard]] QStringList PathsIn(const QByteArray& mountTable) {
  QStringList paths;
  for (const Drive& drive : RemovableDrives(mountTable, FewDisks)) {
    paths.append(drive.Path);
  }
  return paths;
}

TEST(RemovableDrivesTest, WhatTheDesktopMountsCountsWhateverItIs) {
  EXPECT_EQ(PathsIn("30 1 0:50 / /run/media/ann/DISK rw - tmpfs tmpfs rw\n"
                    "31 1 8:17 / /media/ann/STICK rw,nosuid shared:1 - vfat /dev/sdb1 rw\n"
                    "32 1 0:51 / /media/floppy rw - tmpfs tmpfs rw\n"),
            (QStringList{u"/media/ann/STICK"_s, u"/media/floppy"_s, u"/run/media/ann/DISK"_s}));
}

TEST(RemovableDrivesTest, ElsewhereOnlyARemovableDiskCountsAndNotTheSystemsOwn) {
  EXPECT_EQ(PathsIn("27 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                    "28 27 8:2 / /home rw - ext4 /dev/sda2 rw\n"
                    "29 27 0:21 / /proc rw - proc proc rw\n"
                    "30 27 0:22 / /run rw - tmpfs tmpfs rw\n"
                    "31 27 0:22 / /mediathek rw - tmpfs tmpfs rw\n"
                    "32 27 0:22 / /media rw - tmpfs tmpfs rw\n"
                    "33 27 8:17 / /mnt rw - vfat /dev/sdb1 rw\n"),
            QStringList{u"/mnt"_s});
}

TEST(RemovableDrivesTest, ALabelNamesTheDriveAndItsPlace) {
  const QList<Drive> drives =
      RemovableDrives("31 1 8:17 / /media/ann/My\\040back\\134up\\0401 rw - vfat x rw\n", FewDisks);
  ASSERT_EQ(drives.size(), 1);
  EXPECT_EQ(drives[0].Path, u"/media/ann/My back\\up 1"_s);
  EXPECT_EQ(drives[0].Label, u"My back\\up 1 (/media/ann/My back\\up 1)"_s);
}

TEST(RemovableDrivesTest, AMountOverAnotherIsListedOnce) {
  EXPECT_EQ(PathsIn("31 1 8:17 / /mnt rw - vfat /dev/sdb1 rw\n"
                    "32 31 0:40 / /mnt rw - tmpfs tmpfs rw\n"
                    "33 1 8:17 / /media/x rw - vfat /dev/sdb1 rw\n"
                    "34 33 8:17 / /media/x rw - vfat /dev/sdb1 rw\n"),
            QStringList{u"/media/x"_s});
}

TEST(RemovableDrivesTest, AnUnreadableTableHasNone) {
  EXPECT_EQ(PathsIn(""), QStringList());
  EXPECT_EQ(PathsIn("\n31 1\nnothing of the kind\n"), QStringList());
}

// A table of devices as the kernel lays it out: links into a tree of devices.
class DiskOfTest : public ::testing::Test {
protected:
  void Add(const QString& device, const QString& place, const QByteArray& removable) {
    const QDir folder(root.path());
    ASSERT_TRUE(folder.mkpath(place));
    ASSERT_TRUE(folder.mkpath(u"block"_s));
    if (removable.isEmpty()) {
      WriteBytes(folder.filePath(place + u"/partition"_s), "1\n");
    } else {
      WriteBytes(folder.filePath(place + u"/removable"_s), removable);
    }
    ASSERT_TRUE(QFile::link(folder.filePath(place), folder.filePath(u"block/"_s + device)));
  }
  [[nodiscard]] Disk Of(const QString& device) const {
    return DiskOf(device, root.filePath(u"block"_s));
  }

  QTemporaryDir root;
};

TEST_F(DiskOfTest, APartitionIsAsRemovableAsItsDisk) {
  Add(u"8:0"_s, u"devices/pci/ata1/sda"_s, "0\n");
  Add(u"8:1"_s, u"devices/pci/ata1/sda/sda1"_s, {});
  Add(u"8:16"_s, u"devices/pci/card/sdb"_s, "1\n");
  Add(u"8:17"_s, u"devices/pci/card/sdb/sdb1"_s, {});
  EXPECT_FALSE(Of(u"8:0"_s).Removable);
  EXPECT_FALSE(Of(u"8:1"_s).Removable);
  EXPECT_TRUE(Of(u"8:16"_s).Removable);
  EXPECT_TRUE(Of(u"8:17"_s).Removable);
  EXPECT_EQ(Of(u"8:0"_s).Name, Of(u"8:1"_s).Name);
  EXPECT_NE(Of(u"8:1"_s).Name, Of(u"8:17"_s).Name);
}

TEST_F(DiskOfTest, ADiskThatIsPluggedInIsRemovableThoughItSaysOtherwise) {
  Add(u"8:32"_s, u"devices/pci/usb2/2-1/sdc"_s, "0\n");
  EXPECT_TRUE(Of(u"8:32"_s).Removable);
}

TEST_F(DiskOfTest, WhatHasNoDeviceIsNoDisk) {
  EXPECT_EQ(Of(u"0:22"_s).Name, QString());
  EXPECT_FALSE(Of(u"0:22"_s).Removable);
}

TEST(SystemDrivesTest, TheSystemsOwnPlacesAreNoDrives) {
  for (const Drive& drive : SystemDrives().Removable()) {
    EXPECT_NE(drive.Path, u"/"_s);
    EXPECT_FALSE(drive.Path.startsWith(u"/proc"_s));
  }
}

}  // namespace
}  // namespace tessaly::test
