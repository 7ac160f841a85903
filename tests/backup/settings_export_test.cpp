#include "backup/settings_export.h"

#include "store/runtime_error.h"
#include "tests/backup/backup_fixture.h"
#include "tests/support/small_disk.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class SettingsExportTest : public BackupTest {
protected:
  SettingsExportTest() {
    State().ProgramOptions = {.TimerStatus = 1, .GraphicStats = 1, .PubSource = u"1"_s};
    State().Selection = {.Mode = 1,
                         .Exam = 1,
                         .Section = 1,
                         .ExamString = u"2000 Examination"_s,
                         .SectionString = u"Part II"_s,
                         .Year = u"00"_s,
                         .Subject = u"Gifts; \"other\""_s,
                         .QuestionType = 2};
    settings.writes.clear();
  }

  void Import(const QByteArray& content) {
    WriteBytes(Export(), content);
    exporter.ImportSettingsFile();
  }

  SettingsExport exporter{State(), settings, program.Settings(), files, window};
};

const QByteArray kExported =
    "[Options]\n"
    "AlarmSetting=0\n"
    "DisplaySmallFonts=0\n"
    "GraphicStats=1\n"
    "TimerStatus=1\n"
    "TipofDay=0\n"
    "PubSource=1\n"
    "[Settings]\n"
    "MainHeight=7005\n"
    "MainLeft=-60\n"
    "MainTop=1005\n"
    "MainWidth=11505\n"
    "[StudyMode]\n"
    "Exam=1\n"
    "ExamString=2000 Examination\n"
    "Method=0\n"
    "Mode=1\n"
    "QuestionType=2\n"
    "Section=1\n"
    "SectionString=Part II\n"
    "Subject=Gifts; \"other\"\n";

TEST_F(SettingsExportTest, WritesEveryKeyInItsOrderFromMemory) {
  settings.values[u"Options/AlarmSetting"_s] = u"1"_s;
  exporter.MakeExportFile();
  EXPECT_EQ(ReadBytes(Export()), kExported);
  EXPECT_EQ(settings.writes, QStringList());
}

TEST_F(SettingsExportTest, AnEarlierFileIsChangedKeyByKey) {
  WriteBytes(Export(), "[SubjectStatsT]\r\nBasis of Assets=12\r\n[Options]\r\nTimerStatus=0\r\n");
  exporter.MakeExportFile();
  EXPECT_TRUE(ReadBytes(Export()).startsWith(
      "[SubjectStatsT]\nBasis of Assets=12\n[Options]\nTimerStatus=1\nAlarmSetting=0\n"));
}

TEST_F(SettingsExportTest, ImportGoesStepByStepAndDeletesTheFile) {
  State().ProgramOptions = {};
  State().Selection = {};
  window.measures = {{WindowMeasure::Height, 1.F},
                     {WindowMeasure::Left, 2.F},
                     {WindowMeasure::Top, 3.F},
                     {WindowMeasure::Width, 4.F}};
  Import(kExported);
  EXPECT_EQ(
      settings.writes,
      (QStringList{u"Options/TimerStatus=1"_s, u"Options/AlarmSetting=0"_s,
                   u"Options/GraphicStats=1"_s, u"Options/DisplaySmallFonts=0"_s,
                   u"Options/TipofDay=0"_s, u"Options/PubSource=1"_s, u"Settings/MainHeight=7005"_s,
                   u"Settings/MainLeft=-60"_s, u"Settings/MainTop=1005"_s,
                   u"Settings/MainWidth=11505"_s, u"StudyMode/Basis of Assets=0"_s,
                   u"StudyMode/Exam=1"_s, u"StudyMode/ExamString=2000"_s, u"StudyMode/Method=0"_s,
                   u"StudyMode/Mode=1"_s, u"StudyMode/QuestionType=2"_s, u"StudyMode/Section=1"_s,
                   u"StudyMode/SectionString=0"_s, u"StudyMode/Subject=0"_s}));
  EXPECT_EQ(window.changes, (QList{WindowMeasure::Height, WindowMeasure::Left, WindowMeasure::Top,
                                   WindowMeasure::Width}));
  EXPECT_FALSE(QFile::exists(Export()));
}

TEST_F(SettingsExportTest, ImportTakesTheNarrowedValuesIntoMemory) {
  State().ProgramOptions = {};
  State().Selection = {};
  State().Selection.Year = u"96"_s;
  Import(kExported);
  const Options& options = State().ProgramOptions;
  EXPECT_EQ(options.TimerStatus, 1);
  EXPECT_EQ(options.GraphicStats, 1);
  EXPECT_EQ(options.PubSource, u"1"_s);
  const StudySelection& selection = State().Selection;
  EXPECT_EQ(selection.Mode, 1);
  EXPECT_EQ(selection.Method, 0);
  EXPECT_EQ(selection.Exam, 1);
  EXPECT_EQ(selection.Section, 1);
  EXPECT_EQ(selection.QuestionType, 2);
  EXPECT_EQ(selection.ExamString, u"2000"_s);
  EXPECT_EQ(selection.SectionString, u"0"_s);
  EXPECT_EQ(selection.Subject, u"0"_s);
  EXPECT_EQ(selection.Year, u"96"_s);
}

// The options are read as numbers whatever they are for: the font size waits for the next load.
TEST_F(SettingsExportTest, ImportLeavesTheFontSizeAndTheReminders) {
  Import("[Options]\nDisplaySmallFonts=1\nPubSource=disk 7\nSuppress2587Msg=1\n");
  EXPECT_EQ(State().ProgramOptions.DisplaySmallFonts, 1);
  EXPECT_EQ(State().ProgramOptions.PubSource, u"0"_s);
  EXPECT_EQ(State().ProgramOptions.QuestionFontSize, kQuestionFontPoints);
  EXPECT_FALSE(settings.values.contains(u"Options/Suppress2587Msg"_s));
}

TEST_F(SettingsExportTest, TheBasisOfAssetsMovesToTheStudySettings) {
  Import("[SubjectStatsT]\nBasis of Assets=12 questions\n");
  EXPECT_EQ(settings.values.value(u"StudyMode/Basis of Assets"_s), u"12"_s);
}

TEST_F(SettingsExportTest, WhatIsSavedOfThePlaceIsWhatTheWindowMadeOfIt) {
  window.smallestSize = 1500;
  Import("[Settings]\nMainHeight=10\nMainLeft=-150\nMainTop=3000\nMainWidth=20\n");
  EXPECT_EQ(settings.values.value(u"Settings/MainHeight"_s), u"1500"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainLeft"_s), u"-150"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainTop"_s), u"3000"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s), u"1500"_s);
  EXPECT_FALSE(settings.values.contains(u"Settings/Maximized"_s));
}

TEST_F(SettingsExportTest, AMissingFileReadsAsZerosAndFailsAtItsDeletion) {
  EXPECT_RUNTIME_ERROR(exporter.ImportSettingsFile(), ErrorNumber::FileNotFound);
  EXPECT_EQ(settings.writes.size(), 19);
  for (const QString& write : settings.writes) {
    EXPECT_TRUE(write.endsWith(u"=0"_s)) << write.toStdString();
  }
  for (const auto& [measure, twips] : window.measures) {
    EXPECT_EQ(twips, 0.F);
  }
  EXPECT_EQ(State().ProgramOptions.PubSource, u"0"_s);
  EXPECT_EQ(State().Selection.ExamString, u"0"_s);
  EXPECT_EQ(State().Selection.Exam, 0);
}

TEST_F(SettingsExportTest, ANumberThatItsSettingCannotHoldFailsTheImport) {
  for (const char* content : {"[Options]\nTipofDay=256\n", "[StudyMode]\nExam=-1\n",
                              "[StudyMode]\nQuestionType=32768\n"}) {
    SCOPED_TRACE(content);
    EXPECT_RUNTIME_ERROR(Import(content), ErrorNumber::Overflow);
    EXPECT_TRUE(QFile::exists(Export()));
  }
}

TEST_F(SettingsExportTest, DeletingMindsNoMissingFile) {
  exporter.MakeExportFile();
  exporter.DeleteExportFile();
  exporter.DeleteExportFile();
  EXPECT_FALSE(QFile::exists(Export()));
}

TEST_F(SettingsExportTest, AFullProgramFolderKeepsTheEarlierFile) {
  SmallDisk volume(64);
  SKIP_UNLESS_MOUNTED(volume);
  State().Paths.ProgramFolder = volume.Folder();
  const QString path = volume.FilePath(kExportFileName);
  WriteBytes(path, "[Options]\nTimerStatus=0\n");
  volume.Fill();
  EXPECT_RUNTIME_ERROR(exporter.MakeExportFile(), ErrorNumber::DiskFull);
  EXPECT_EQ(ReadBytes(path), "[Options]\nTimerStatus=0\n");
  volume.SetReadOnly(true);
  EXPECT_RUNTIME_ERROR(exporter.DeleteExportFile(), ErrorNumber::PermissionDenied);
  volume.SetReadOnly(false);
  exporter.DeleteExportFile();
  volume.SetReadOnly(true);
  exporter.DeleteExportFile();
}

}  // namespace
}  // namespace tessaly::test
