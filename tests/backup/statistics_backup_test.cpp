#include "backup/statistics_backup.h"

#include "store/runtime_error.h"
#include "tests/backup/backup_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class StatisticsBackupTest : public BackupTest {
protected:
  [[nodiscard]] int AskedInMemory() { return State().Subjects.SubjectAsked[5]; }
  // A backup of what is there now, on the drive and in the program folder.
  void MakeBackup() {
    Run(kBackUp);
    dialog.Clear();
    settings.writes.clear();
  }
};

TEST_F(StatisticsBackupTest, ABackupPutsTheFileOnTheDriveAndTheSettingsBesideTheProgram) {
  Run(kBackUp);
  EXPECT_EQ(ReadBytes(OnDrive()), ReadBytes(Answers()));
  EXPECT_EQ(NamesIn(stick.path()), QStringList{kAnswersFileName});
  EXPECT_EQ(NamesIn(bank.Folder()),
            (QStringList{kAnswersFileName, kQuestionsFileName, kExportFileName}));
  EXPECT_EQ(dialog.working,
            QStringList{u"Please wait while Tessaly backs up your statistics..."_s});
  EXPECT_EQ(dialog.timesUnloaded, 1);
  EXPECT_EQ(boxes.shown, QStringList());
  EXPECT_EQ(settings.writes, QStringList());
}

TEST_F(StatisticsBackupTest, ASecondBackupOverwritesWithoutAsking) {
  Run(kBackUp);
  Count(u"TMAsked"_s, 7);
  Run(kBackUp);
  EXPECT_EQ(ReadBytes(OnDrive()), ReadBytes(Answers()));
  EXPECT_EQ(boxes.shown, QStringList());
}

TEST_F(StatisticsBackupTest, ARestoreBringsBackTheFileAndTheSettingsAsExported) {
  State().ProgramOptions.TimerStatus = 1;
  Count(u"TMAsked"_s, 7);
  const QStringList backedUp = DumpOf(Answers());
  MakeBackup();
  Count(u"TMAsked"_s, 9);
  State().ProgramOptions.TimerStatus = 0;
  Run(kRestore);
  EXPECT_EQ(DumpOf(Answers()), backedUp);
  EXPECT_EQ(State().ProgramOptions.TimerStatus, 1);
  EXPECT_EQ(State().Selection.ExamString, u"2001"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainHeight"_s), u"7005"_s);
  EXPECT_EQ(NamesIn(bank.Folder()), (QStringList{kAnswersFileName, kQuestionsFileName}));
  EXPECT_EQ(dialog.working,
            QStringList{u"Please wait while Tessaly restores your statistics..."_s});
  EXPECT_EQ(dialog.timesUnloaded, 1);
  EXPECT_EQ(boxes.shown, QStringList());
}

TEST_F(StatisticsBackupTest, TheTotalsInMemoryAreThoseOfTheRestoredFileAndMode) {
  Count(u"TMAsked"_s, 7);
  Count(u"EMAsked"_s, 11);
  MakeBackup();
  Count(u"TMAsked"_s, 9);
  Run(kRestore);
  EXPECT_EQ(AskedInMemory(), 7);
  State().Selection.Mode = kEvaluationMode;
  MakeBackup();
  State().Selection.Mode = kTutorialMode;
  Run(kRestore);
  EXPECT_EQ(AskedInMemory(), 11);
  EXPECT_EQ(PanelText(Panel::Mode), u"Evaluation Mode"_s);
}

TEST_F(StatisticsBackupTest, ASessionAfterARestoreKeepsTheRestoredTotals) {
  bank.AddQuestions(u"01Part1"_s, 1, 2, TestBank::SubjectName(5));
  Count(u"TMAsked"_s, 7);
  MakeBackup();
  Count(u"TMAsked"_s, 30);
  Run(kRestore);
  Session().BeginSession();
  Session().GradeAnswer(0);
  Session().EndSession();
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"8 1 0 0"_s);
}

TEST_F(StatisticsBackupTest, WithoutAnExportFileTheFileIsRestoredAndTheSettingsAreZeros) {
  Count(u"TMAsked"_s, 7);
  MakeBackup();
  Count(u"TMAsked"_s, 9);
  ASSERT_TRUE(QFile::remove(Export()));
  boxes.answers = {BoxAnswer::Ok, BoxAnswer::Cancel};
  Run(kRestore);
  EXPECT_EQ(boxes.shown, (QStringList{kRestoreRequest, kRestoreRequest}));
  EXPECT_EQ(settings.writes.size(), 2 * 19);
  EXPECT_EQ(AskedInMemory(), 7);
  EXPECT_EQ(State().Selection.ExamString, u"0"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"0 - 0"_s);
  EXPECT_EQ(window.measures.at(WindowMeasure::Height), 0.F);
  EXPECT_EQ(dialog.timesUnloaded, 1);
}

TEST_F(StatisticsBackupTest, CancellingABackupWithNoDiskLeavesNoExportFile) {
  drives.removable.clear();
  boxes.answers = {BoxAnswer::Cancel};
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_EQ(boxes.lastIcon, BoxIcon::Exclamation);
  EXPECT_EQ(NamesIn(bank.Folder()), (QStringList{kAnswersFileName, kQuestionsFileName}));
  EXPECT_EQ(NamesIn(stick.path()), QStringList());
  EXPECT_EQ(dialog.timesUnloaded, 1);
}

TEST_F(StatisticsBackupTest, OkTriesTheFailedStepAgain) {
  drives.removable.clear();
  boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
  boxes.whenShown = [this] {
    // A step that was done is not done again.
    State().ProgramOptions.TimerStatus = 1;
    if (boxes.shown.size() == 2) {
      drives.removable = {{u"Stick"_s, stick.path()}};
    }
  };
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, (QStringList{kBackupRequest, kBackupRequest}));
  EXPECT_EQ(ReadBytes(OnDrive()), ReadBytes(Answers()));
  EXPECT_TRUE(ReadBytes(Export()).contains("TimerStatus=0\n"));
  EXPECT_EQ(dialog.timesUnloaded, 1);
}

TEST_F(StatisticsBackupTest, CancellingARestoreChangesNothing) {
  MakeBackup();
  const QByteArray before = ReadBytes(Answers());
  drives.removable.clear();
  boxes.answers = {BoxAnswer::Cancel};
  Run(kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  EXPECT_EQ(boxes.lastIcon, BoxIcon::Exclamation);
  EXPECT_EQ(ReadBytes(Answers()), before);
  EXPECT_EQ(settings.writes, QStringList());
  EXPECT_TRUE(QFile::exists(Export()));
  EXPECT_EQ(dialog.timesUnloaded, 1);
}

TEST_F(StatisticsBackupTest, AFailedImportIsTriedAgainAsAWhole) {
  MakeBackup();
  WriteBytes(Export(), "[Options]\nTipofDay=1\n[StudyMode]\nExam=999\n");
  boxes.answers = {BoxAnswer::Ok};
  boxes.whenShown = [this] { WriteBytes(Export(), "[StudyMode]\nExam=3\n"); };
  Run(kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  EXPECT_EQ(State().ProgramOptions.TipofDay, 0);
  EXPECT_EQ(State().Selection.Exam, 3);
  EXPECT_FALSE(QFile::exists(Export()));
}

TEST_F(StatisticsBackupTest, WithoutADriveOkOnlyAsksForADisk) {
  State().Backup.SelectedDrive.clear();
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    boxes.shown.clear();
    dialog.Clear();
    boxes.answers = {BoxAnswer::Ok};
    Run(direction);
    EXPECT_EQ(boxes.shown, QStringList{direction == kRestore ? kRestoreRequest : kBackupRequest});
    EXPECT_EQ(dialog.timesUnloaded, 0);
    boxes.answers = {BoxAnswer::Cancel};
    Run(direction);
    EXPECT_EQ(dialog.timesUnloaded, 1);
    EXPECT_EQ(dialog.working, QStringList());
    EXPECT_EQ(NamesIn(bank.Folder()), (QStringList{kAnswersFileName, kQuestionsFileName}));
  }
}

TEST_F(StatisticsBackupTest, ALongCopyLetsTheDialogRepaintBetweenBlocks) {
  bank.RunOnAnswers(
      u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
      u"INSERT INTO \"01Part1\" SELECT i, 'U', 'U', 'U', 0, 0 FROM n"_s);
  constexpr qint64 kLongestBlock = qint64{1024} * 1024;
  ASSERT_LT(QFileInfo(Answers()).size(), kLongestBlock);
  Run(kBackUp);
  EXPECT_GE(dialog.timesRefreshed, 4);
}

}  // namespace
}  // namespace tessaly::test
