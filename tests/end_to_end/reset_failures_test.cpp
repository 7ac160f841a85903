// What a reset of all statistics leaves behind when it fails: rows as they were or reset, whole.

#include "tests/end_to_end/answer_records.h"
#include "tests/end_to_end/disk_test.h"
#include "tests/end_to_end/statistics_commands.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr int kRowsATable = 20;
constexpr auto kReport = "All study statistics have been deleted."_L1;

class ResetFailureTest : public DiskTest {
protected:
  explicit ResetFailureTest(ProgramFolderIs place = ProgramFolderIs::OnTheDisk) : DiskTest(place) {
    FillStatistics(Bank(), kRowsATable);
    StoreTimers(installation);
    before = Records();
  }

  [[nodiscard]] AnswerRecords Records() { return ReadAnswerRecords(Bank().Paths().AnswersDbPath); }
  void Reset() {
    AskToResetAll(program);
    program.AnswerBox(u"Yes"_s);
  }
  // The dialog of a failed reset is still open.
  void ExpectResetFails(int number, const QString& text) {
    Reset();
    static_cast<void>(program.WaitForBox());
    EXPECT_FALSE(program.Windows().contains(u"frmResetting"_s));
    ExpectErrorBox(number, text);
    program.Click(u"cmdCancel"_s);
    EXPECT_TRUE(Bank().IsIntact());
  }
  void ExpectResetWorks() {
    Reset();
    EXPECT_EQ(program.WaitForBox().text, kReport);
    program.AnswerBox(u"OK"_s);
    EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
    EXPECT_TRUE(Bank().IsIntact());
    AnswerRecords reset = before;
    for (int step = 0; step < kResetSteps; ++step) {
      reset.Reset(step);
    }
    EXPECT_TRUE(Records() == reset);
    EXPECT_EQ(CountTimers(installation), kTimersAfterReset);
  }

  AnswerRecords before;
};

TEST_F(ResetFailureTest, AFullDiskStopsItHalfWayAndItCanBeDoneAgain) {
  // The room that is left suffices for every table but this one.
  Bank().RunOnAnswers(
      u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 4000) "
      u"INSERT INTO \"98Part2\" SELECT i, 'C', 'I', 'F', 1, 1 FROM n"_s);
  before = Records();
  program.StartToMainWindow();
  constexpr qint64 kRoomForATable = qint64{40} * 1024;
  disk.Fill(kRoomForATable);
  ExpectResetFails(61, kDiskFull);
  constexpr int kTablesBefore = 13;
  EXPECT_EQ(ResetStepsBetween(before, Records()), kTablesBefore);
  disk.Free();
  ExpectResetWorks();
}

TEST_F(ResetFailureTest, AReadOnlyFolderKeepsEveryRow) {
  disk.SetReadOnly(true);
  program.StartToMainWindow();
  ExpectResetFails(70, kPermissionDenied);
  EXPECT_TRUE(Records() == before);
  disk.SetReadOnly(false);
  ExpectResetWorks();
}

TEST_F(ResetFailureTest, AMissingOrForeignFileIsReportedAndLeftAlone) {
  const QString path = Bank().Paths().AnswersDbPath;
  const QByteArray sound = ReadBytes(path);
  const QByteArray foreign("A letter.\n");
  program.StartToMainWindow();
  program.Trigger(u"mnuStatsReset"_s);
  program.WaitForWindow(u"frmResetChoices"_s);
  program.Click(u"chkResetAll"_s);
  for (const bool missing : {false, true}) {
    if (missing) {
      ASSERT_TRUE(QFile::remove(path));
    } else {
      WriteBytes(path, foreign);
    }
    program.Click(u"cmdReset"_s);
    program.AnswerBox(u"Yes"_s);
    missing ? ExpectErrorBox(53, u"File not found"_s)
            : ExpectErrorBox(3343, u"Unrecognized database format"_s);
    EXPECT_EQ(QFile::exists(path), !missing);
    EXPECT_TRUE(missing || ReadBytes(path) == foreign);
  }
  program.Click(u"cmdCancel"_s);
  WriteBytes(path, sound);
  ExpectResetWorks();
}

class ResetSettingsFailureTest : public ResetFailureTest {
protected:
  ResetSettingsFailureTest() : ResetFailureTest(ProgramFolderIs::Elsewhere) {
    installation.UseConfigFolder(disk.Folder());
    StoreTimers(installation);
  }
};

TEST_F(ResetSettingsFailureTest, TimesThatCannotBeDeletedStopItBeforeTheRows) {
  program.StartToMainWindow();
  disk.Fill();
  ExpectResetFails(61, kDiskFull);
  EXPECT_TRUE(Records() == before);
  EXPECT_EQ(CountTimers(installation), kTimers);
  disk.Free();
  ExpectResetWorks();
}

class LongResetTest : public ResetFailureTest {
protected:
  LongResetTest() {
    constexpr int kMillisecondsAFlush = 5;
    installation.SlowDown(disk.Folder(), kMillisecondsAFlush);
  }
};

TEST_F(LongResetTest, KeepsItsProgressFormAliveOnASlowDisk) {
  program.StartToMainWindow();
  AskToResetAll(program);
  program.Start({u"answer"_s, u"Yes"_s});
  int looks = 0;
  for (QStringList windows; !windows.contains(u"QMessageBox"_s); windows = program.Windows()) {
    looks += windows.contains(u"frmResetting"_s) ? 1 : 0;
  }
  // Each of the reset's changes lets the windows have their turn.
  EXPECT_GE(looks, kResetSteps / 4);
  EXPECT_EQ(program.WaitForBox().text, kReport);
}

}  // namespace
}  // namespace tessaly::test
