// Backup and restore with a drive, or a program folder, on a disk that is full, write-protected or
// pulled out.

#include "tests/backup/backup_copies_fixture.h"
#include "tests/support/small_disk.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// The drive is a volume of its own.
class BackupDiskTest : public BackupCopiesTest {
protected:
  void SetUp() override {
    SKIP_UNLESS_MOUNTED(disk);
    WriteBytes(OnDisk(), older);
    PutIn(disk.Folder());
  }
  [[nodiscard]] QString OnDisk() const { return disk.FilePath(kAnswersFileName); }

  SmallDisk disk{2048};
};

TEST_F(BackupDiskTest, AFullDiskKeepsItsBackupAndIsTriedAgainWhenThereIsRoom) {
  disk.Fill();
  boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
  boxes.whenShown = [this] {
    EXPECT_EQ(ReadBytes(OnDisk()), older);
    EXPECT_EQ(NamesIn(disk.Folder()), (QStringList{u"ballast"_s, kAnswersFileName}));
    if (boxes.shown.size() == 2) {
      disk.Free();
    }
  };
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, (QStringList{kBackupRequest, kBackupRequest}));
  EXPECT_EQ(ReadBytes(OnDisk()), newer);
  EXPECT_EQ(NamesIn(disk.Folder()), QStringList{kAnswersFileName});
}

TEST_F(BackupDiskTest, AWriteProtectedDiskCanBeReadAndNotWritten) {
  disk.SetReadOnly(true);
  boxes.answers = {BoxAnswer::Cancel};
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_EQ(ReadBytes(OnDisk()), older);
  WriteBytes(Export(), exported);
  boxes.shown.clear();
  Run(kRestore);
  EXPECT_EQ(boxes.shown, QStringList());
  EXPECT_EQ(ReadBytes(Answers()), older);
}

TEST_F(BackupDiskTest, ADiskPulledOutHalfWayHarmsNothing) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    SCOPED_TRACE(direction);
    Reset();
    SmallDisk pulled(2048);
    WriteBytes(pulled.FilePath(kAnswersFileName), older);
    PutIn(pulled.Folder());
    dialog.whenRefreshed = [this, &pulled] {
      if (dialog.timesRefreshed == 2) {
        pulled.TakeOut();
        drives.removable.clear();
      }
    };
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Cancel};
    Run(direction);
    EXPECT_EQ(NamesIn(pulled.Folder()), QStringList());
    if (direction == kBackUp) {
      EXPECT_EQ(boxes.shown, (QStringList{kBackupRequest, kBackupRequest}));
      EXPECT_EQ(ReadBytes(Answers()), newer);
    } else {
      // What an open file still gives is the whole backup.
      ExpectOldOrNew(kRestore);
    }
  }
}

TEST_F(BackupDiskTest, AnEmptyPlaceWhereADiskWasIsNeverWrittenTo) {
  disk.TakeOut();
  drives.removable.clear();
  boxes.answers = {BoxAnswer::Cancel};
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_EQ(NamesIn(disk.Folder()), QStringList());
}

TEST_F(BackupDiskTest, AFullProgramVolumeKeepsItsFile) {
  SmallDisk volume(1024);
  const TestBank small(volume.Folder());
  State().Paths = small.Paths();
  const QByteArray before = ReadBytes(small.Paths().AnswersDbPath);
  WriteBytes(QDir(small.Folder()).filePath(kExportFileName), exported);
  volume.Fill();
  boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
  boxes.whenShown = [&] {
    EXPECT_EQ(ReadBytes(small.Paths().AnswersDbPath), before);
    EXPECT_FALSE(QFile::exists(BesideName(small.Paths().AnswersDbPath)));
    if (boxes.shown.size() == 2) {
      volume.Free();
    }
  };
  Run(kRestore);
  EXPECT_EQ(boxes.shown, (QStringList{kRestoreRequest, kRestoreRequest}));
  EXPECT_EQ(ReadBytes(small.Paths().AnswersDbPath), older);
  EXPECT_FALSE(QFile::exists(QDir(small.Folder()).filePath(kExportFileName)));
}

TEST_F(BackupDiskTest, AWriteProtectedProgramFolderFailsBothWaysAndKeepsItsFiles) {
  SmallDisk volume(1024);
  const TestBank small(volume.Folder());
  State().Paths = small.Paths();
  const QByteArray before = ReadBytes(small.Paths().AnswersDbPath);
  volume.SetReadOnly(true);
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    boxes.shown.clear();
    boxes.answers = {BoxAnswer::Cancel};
    Run(direction);
    EXPECT_EQ(boxes.shown, QStringList{direction == kRestore ? kRestoreRequest : kBackupRequest});
    EXPECT_EQ(ReadBytes(small.Paths().AnswersDbPath), before);
    EXPECT_EQ(NamesIn(small.Folder()), kProgramFiles);
    EXPECT_EQ(ReadBytes(OnDisk()), older);
  }
  volume.SetReadOnly(false);
}

}  // namespace
}  // namespace tessaly::test
