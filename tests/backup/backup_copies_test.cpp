// What a copy in either direction leaves behind when it fails, is cut off or meets a file that is
// no backup: the file before it, whole, or its own, whole.

#include "store/connection.h"
#include "store/runtime_error.h"
#include "tests/backup/backup_fixture.h"
#include "tests/support/child_process.h"
#include "tests/support/small_disk.h"
#include "tests/support/watched_files.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QStringList kProgramFiles{kAnswersFileName, kQuestionsFileName};
const QString kStrayName = kAnswersFileName + u".new"_s;

// An older file on the drive and a newer one in the program folder, each of several blocks, and an
// export file.
class BackupCopiesTest : public BackupTest {
protected:
  BackupCopiesTest() {
    bank.RunOnAnswers(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 8000) "
        u"INSERT INTO \"01Part1\" SELECT i, 'U', 'U', 'U', 0, 0 FROM n"_s);
    Run(kBackUp);
    older = ReadBytes(OnDrive());
    Count(u"TMAsked"_s, 7);
    newer = ReadBytes(Answers());
    exported = ReadBytes(Export());
    settings.writes.clear();
    boxes.shown.clear();
    dialog.Clear();
  }

  void Reset() {
    WriteBytes(OnDrive(), older);
    WriteBytes(Answers(), newer);
    WriteBytes(Export(), exported);
    static_cast<void>(QFile::remove(BesideName(OnDrive())));
    static_cast<void>(QFile::remove(BesideName(Answers())));
    boxes.shown.clear();
    settings.writes.clear();
    dialog.Clear();
  }
  // As a program of its own, on these files.
  void RunOn(FileOperations& watched, std::uint8_t direction) {
    Program other({settings, clock, boxes, watched, drives, printer, desktop, browserWindow},
                  bank.Folder(), view);
    other.Prepare();
    other.State().Backup = {direction, State().Backup.SelectedDrive};
    StatisticsBackup(other, window, dialog).Run();
  }
  [[nodiscard]] QStringList StepsOf(std::uint8_t direction) {
    Reset();
    WatchedFiles watched;
    RunOn(watched, direction);
    return watched.steps;
  }
  // Of the file that a direction replaces, and of the one that it reads.
  [[nodiscard]] QString TargetOf(std::uint8_t direction) const {
    return direction == kRestore ? Answers() : OnDrive();
  }
  void ExpectOldOrNew(std::uint8_t direction) {
    const QByteArray target = ReadBytes(TargetOf(direction));
    EXPECT_TRUE(target == older || target == newer);
    EXPECT_EQ(ReadBytes(direction == kRestore ? OnDrive() : Answers()),
              direction == kRestore ? older : newer);
  }
  void ExpectDone(std::uint8_t direction) {
    EXPECT_EQ(ReadBytes(TargetOf(direction)), direction == kRestore ? older : newer);
    EXPECT_FALSE(QFile::exists(BesideName(TargetOf(direction))));
  }
  void ExpectNothingChanged() {
    EXPECT_EQ(ReadBytes(Answers()), newer);
    EXPECT_EQ(ReadBytes(Export()), exported);
    EXPECT_EQ(NamesIn(bank.Folder()), kProgramFiles + QStringList{kExportFileName});
    EXPECT_EQ(settings.writes, QStringList());
    EXPECT_EQ(dialog.timesUnloaded, 1);
  }

  QByteArray older;
  QByteArray newer;
  QByteArray exported;
};

TEST_F(BackupCopiesTest, TheCopyIsMadeReadyBesideItsTarget) {
  EXPECT_EQ(StepsOf(kBackUp),
            (QStringList{u"write tessaly02s.ini"_s, u"copy tessaly02a.mdb to tessaly02a.mdb.new"_s,
                         u"move tessaly02a.mdb.new to tessaly02a.mdb"_s}));
  EXPECT_EQ(StepsOf(kRestore), (QStringList{u"copy tessaly02a.mdb to tessaly02a.mdb.new"_s,
                                            u"move tessaly02a.mdb.new to tessaly02a.mdb"_s,
                                            u"remove tessaly02s.ini"_s}));
}

TEST_F(BackupCopiesTest, CutOffAnywhereBothFilesAreWholeAndTheNextCopySucceeds) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    const qsizetype steps = StepsOf(direction).size();
    for (qsizetype step = 1; step <= 2 * steps; ++step) {
      SCOPED_TRACE(u"direction %1, step %2"_s.arg(direction).arg(step).toStdString());
      Reset();
      WatchedFiles watched;
      (step <= steps ? watched.cutBefore : watched.cutAfter) = step <= steps ? step : step - steps;
      EXPECT_THROW(RunOn(watched, direction), PowerCut);
      ExpectOldOrNew(direction);
      WriteBytes(Export(), exported);
      RunOn(files, direction);
      ExpectDone(direction);
    }
  }
}

TEST_F(BackupCopiesTest, CutOffBetweenBlocksItLeavesAtMostAStrayFileThatTheNextCopyReplaces) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    for (int block = 1; block <= 3; ++block) {
      SCOPED_TRACE(u"direction %1, block %2"_s.arg(direction).arg(block).toStdString());
      Reset();
      dialog.whenRefreshed = [this, block] {
        if (dialog.timesRefreshed == block) {
          throw PowerCut();
        }
      };
      EXPECT_THROW(RunOn(files, direction), PowerCut);
      EXPECT_EQ(ReadBytes(TargetOf(direction)), direction == kRestore ? newer : older);
      EXPECT_TRUE(QFile::exists(BesideName(TargetOf(direction))));
      dialog.Clear();
      RunOn(files, direction);
      ExpectDone(direction);
    }
  }
}

TEST_F(BackupCopiesTest, FailingAnywhereItCanBeCancelledOrTriedAgain) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    const qsizetype steps = StepsOf(direction).size();
    for (qsizetype step = 1; step <= steps; ++step) {
      for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::Ok}) {
        SCOPED_TRACE(u"direction %1, step %2"_s.arg(direction).arg(step).toStdString());
        Reset();
        WatchedFiles watched;
        watched.failAt = step;
        boxes.answers = {answer};
        RunOn(watched, direction);
        EXPECT_EQ(boxes.shown,
                  QStringList{direction == kRestore ? kRestoreRequest : kBackupRequest});
        EXPECT_EQ(dialog.timesUnloaded, 1);
        ExpectOldOrNew(direction);
        EXPECT_FALSE(QFile::exists(BesideName(TargetOf(direction))));
        if (answer == BoxAnswer::Ok) {
          ExpectDone(direction);
        } else if (direction == kBackUp) {
          EXPECT_FALSE(QFile::exists(Export()));
        }
      }
    }
  }
}

TEST_F(BackupCopiesTest, WhatIsNoWholeAnswersFileIsNeverRestored) {
  const QString foreign = QDir(bank.WorkingFolder()).filePath(u"foreign"_s);
  {
    Connection file(foreign, u"another password"_s, Connection::Access::CreateNew);
    file.Execute(u"CREATE TABLE SubjectStats (Subject TEXT)"_s);
  }
  QByteArray damaged = older;
  damaged[older.size() / 2] = static_cast<char>(~damaged[older.size() / 2]);
  const QByteArray noise = QByteArray(older).replace(0, 5000, QByteArray(5000, 'n'));
  for (const QByteArray& content :
       {QByteArray(), QByteArray("a text"), noise, damaged, older.first(1024), older.first(3000),
        older.first(older.size() - 1024), older.first(older.size() / 2), ReadBytes(foreign),
        ReadBytes(bank.Paths().QuestionsDbPath)}) {
    SCOPED_TRACE(content.size());
    Reset();
    WriteBytes(OnDrive(), content);
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Cancel};
    RunOn(files, kRestore);
    EXPECT_EQ(boxes.shown, (QStringList{kRestoreRequest, kRestoreRequest}));
    EXPECT_EQ(ReadBytes(OnDrive()), content);
    ExpectNothingChanged();
  }
}

TEST_F(BackupCopiesTest, AnAnswersFileThatLacksSomethingIsNeverRestored) {
  for (const QString& sql :
       {u"DROP TABLE \"96Part4\""_s, u"DROP TABLE SubjectStats"_s,
        u"DELETE FROM SubjectStats WHERE Subject = 'Subject 86'"_s,
        u"ALTER TABLE SubjectStats RENAME TO Others"_s,
        u"UPDATE SubjectStats SET EMCorrect = 40000 WHERE Subject = 'Subject 86'"_s}) {
    SCOPED_TRACE(sql.toStdString());
    Reset();
    {
      Connection file(OnDrive(), kPassword, Connection::Access::OpenExisting);
      file.Execute(sql);
    }
    boxes.answers = {BoxAnswer::Cancel};
    RunOn(files, kRestore);
    EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
    ExpectNothingChanged();
  }
}

TEST_F(BackupCopiesTest, AStatusTableWithoutAFieldIsNeverRestored) {
  {
    Connection file(OnDrive(), kPassword, Connection::Access::OpenExisting);
    file.Execute(u"DROP TABLE \"01Part1\""_s);
    file.Execute(u"CREATE TABLE \"01Part1\" (QuestionNo INTEGER, TutorialMode TEXT)"_s);
    file.Execute(u"INSERT INTO \"01Part1\" VALUES (1, 'U')"_s);
  }
  boxes.answers = {BoxAnswer::Cancel};
  RunOn(files, kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  ExpectNothingChanged();
}

TEST_F(BackupCopiesTest, ADriveWithoutABackupAsksForAnother) {
  ASSERT_TRUE(QFile::remove(OnDrive()));
  boxes.answers = {BoxAnswer::Cancel};
  RunOn(files, kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  ExpectNothingChanged();
  ASSERT_TRUE(QDir(stick.path()).mkdir(kAnswersFileName));
  dialog.Clear();
  boxes.answers = {BoxAnswer::Cancel};
  RunOn(files, kRestore);
  ExpectNothingChanged();
  EXPECT_TRUE(QDir(stick.path()).rmdir(kAnswersFileName));
}

TEST_F(BackupCopiesTest, ADamagedFileNeverReplacesAGoodBackup) {
  FlipByte(Answers(), newer.size() / 2);
  boxes.answers = {BoxAnswer::Cancel};
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_EQ(ReadBytes(OnDrive()), older);
  EXPECT_EQ(NamesIn(stick.path()), QStringList{kAnswersFileName});
}

TEST_F(BackupCopiesTest, ADamagedOrMissingFileCanBeRestored) {
  for (const QByteArray& content : {QByteArray("a text"), newer.first(1024)}) {
    Reset();
    WriteBytes(Answers(), content);
    Run(kRestore);
    EXPECT_EQ(boxes.shown, QStringList());
    EXPECT_EQ(ReadBytes(Answers()), older);
  }
  Reset();
  ASSERT_TRUE(QFile::remove(Answers()));
  Run(kRestore);
  EXPECT_EQ(ReadBytes(Answers()), older);
}

// The engine would take the journal for the restored file's and spoil it.
TEST_F(BackupCopiesTest, AJournalThatWasLeftBehindIsSettledBeforeTheFileIsReplaced) {
  Reset();
  ChildProcess killed([this](const std::function<void()>& standStill) {
    Connection file(Answers(), kPassword, Connection::Access::OpenExisting);
    file.Execute(u"PRAGMA cache_size = 1"_s);
    file.Execute(u"BEGIN"_s);
    file.Execute(u"UPDATE \"01Part1\" SET TimesAsked = 99"_s);
    file.Execute(u"UPDATE SubjectStats SET TMAsked = 99"_s);
    standStill();
  });
  ASSERT_TRUE(killed.StandsStill());
  killed.Kill();
  const QString journal = Answers() + u"-journal"_s;
  ASSERT_TRUE(QFile::exists(journal));
  const QByteArray journalBytes = ReadBytes(journal);
  const QByteArray tornBytes = ReadBytes(Answers());
  Run(kRestore);
  EXPECT_FALSE(QFile::exists(journal));
  EXPECT_EQ(ReadBytes(Answers()), older);
  EXPECT_TRUE(bank.IsIntact());

  Reset();
  WriteBytes(Answers(), tornBytes);
  WriteBytes(journal, journalBytes);
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList());
  EXPECT_EQ(DumpOf(OnDrive()), DumpOf(Answers()));
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"7 0 0 0"_s);
}

TEST_F(BackupCopiesTest, AFileInUseByAnotherProcessIsNotReplaced) {
  const ChildProcess other([this](const std::function<void()>& standStill) {
    const Connection file(Answers(), kPassword, Connection::Access::OpenExisting);
    standStill();
  });
  ASSERT_TRUE(other.StandsStill());
  boxes.answers = {BoxAnswer::Cancel};
  Run(kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  ExpectNothingChanged();
}

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
