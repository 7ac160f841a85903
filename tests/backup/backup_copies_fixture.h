#ifndef TESSALY_TESTS_BACKUP_BACKUP_COPIES_FIXTURE_H_
#define TESSALY_TESTS_BACKUP_BACKUP_COPIES_FIXTURE_H_

#include "tests/backup/backup_fixture.h"
#include "tests/support/watched_files.h"

namespace tessaly::test {

inline const QStringList kProgramFiles{kAnswersFileName, kQuestionsFileName};

// An older file on the drive and a newer one in the program folder, each of several blocks, and an
// export file.
class BackupCopiesTest : public BackupTest {
protected:
  BackupCopiesTest() {
    bank.RunOnAnswers(QStringLiteral(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 8000) "
        "INSERT INTO \"01Part1\" SELECT i, 'U', 'U', 'U', 0, 0 FROM n"));
    Run(kBackUp);
    older = ReadBytes(OnDrive());
    Count(QStringLiteral("TMAsked"), 7);
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

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_BACKUP_BACKUP_COPIES_FIXTURE_H_
