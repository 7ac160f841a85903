#include "app/program_settings.h"

#include <gtest/gtest.h>

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class ProgramSettingsTest : public ProgramTest {
protected:
  void Load() { program.Settings().LoadSettings(); }
  // In twips.
  static void ExpectPlace(const WindowPlacement& placement, float left, float top, float width,
                          float height) {
    EXPECT_EQ(placement.MainLeft, left);
    EXPECT_EQ(placement.MainTop, top);
    EXPECT_EQ(placement.MainWidth, width);
    EXPECT_EQ(placement.MainHeight, height);
  }
};

TEST_F(ProgramSettingsTest, AFirstStartReadsTheDefaultsAndWritesNothing) {
  Load();
  const StudySelection& selection = State().Selection;
  EXPECT_EQ(selection.Mode, 0);
  EXPECT_EQ(selection.Method, 0);
  EXPECT_EQ(selection.Exam, 0);
  EXPECT_EQ(selection.Section, 0);
  EXPECT_EQ(selection.ExamString, u"2001 Examination"_s);
  EXPECT_EQ(selection.Year, u"0"_s);
  EXPECT_EQ(selection.SectionString, u"Part I"_s);
  EXPECT_EQ(selection.Subject, u""_s);
  EXPECT_EQ(selection.QuestionType, 0);
  EXPECT_EQ(State().Time.Stored, u"0"_s);
  EXPECT_TRUE(settings.writes.isEmpty());
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I"_s);
}

TEST_F(ProgramSettingsTest, AnEmptyModeResetsTheSelectionAndWritesItWhole) {
  Choose(u"Mode"_s, u""_s);
  Choose(u"Exam"_s, u"4"_s);
  Load();
  EXPECT_EQ(
      settings.writes,
      (QStringList{u"StudyMode/Mode=0"_s, u"StudyMode/Method=0"_s, u"StudyMode/Subject="_s,
                   u"StudyMode/QuestionType=0"_s, u"StudyMode/Exam=0"_s, u"StudyMode/Section=0"_s,
                   u"StudyMode/Subject="_s, u"StudyMode/ExamString=2001 Examination"_s,
                   u"StudyMode/Year=01"_s, u"StudyMode/SectionString=Part I (Individual)"_s}));
  EXPECT_EQ(State().Selection.SectionString, u"Part I (Individual)"_s);
  EXPECT_EQ(State().Selection.Year, u"01"_s);
}

TEST_F(ProgramSettingsTest, StudyBySubjectLeavesExamAndSection) {
  Choose(u"Method"_s, u"1"_s);
  Choose(u"Exam"_s, u"3"_s);
  Choose(u"Section"_s, u"2"_s);
  Load();
  EXPECT_EQ(State().Selection.Exam, 0);
  EXPECT_EQ(State().Selection.Section, 0);
}

TEST_F(ProgramSettingsTest, AnEmptyQuestionTypeIsUnanswered) {
  Choose(u"QuestionType"_s, u""_s);
  Load();
  EXPECT_EQ(State().Selection.QuestionType, kUnansweredQuestions);
}

TEST_F(ProgramSettingsTest, TheAlarmCountsAsGivenOnlyAboveThreeHours) {
  settings.values[u"TTimer/2001 Examination - Part I"_s] = u"10800"_s;
  Load();
  EXPECT_FALSE(State().Time.Exceeded);
  settings.values[u"TTimer/2001 Examination - Part I"_s] = u"10801"_s;
  Load();
  EXPECT_TRUE(State().Time.Exceeded);
}

TEST_F(ProgramSettingsTest, TheTimeOfTheStudyModeIsRead) {
  settings.values[u"TTimer/1999 Examination - Part II"_s] = u"11"_s;
  settings.values[u"ETimer/1999 Examination - Part II"_s] = u"22"_s;
  Choose(u"ExamString"_s, u"1999 Examination"_s);
  Choose(u"SectionString"_s, u"Part II"_s);
  Load();
  EXPECT_EQ(State().Time.Stored, u"11"_s);
  Choose(u"Mode"_s, u"1"_s);
  Load();
  EXPECT_EQ(State().Time.Stored, u"22"_s);
}

TEST_F(ProgramSettingsTest, SmallFontsSetTheQuestionFontSize) {
  SetOption(u"DisplaySmallFonts"_s, u"1"_s);
  Load();
  EXPECT_EQ(State().ProgramOptions.QuestionFontSize, 8);
  SetOption(u"DisplaySmallFonts"_s, u"7"_s);
  Load();
  EXPECT_EQ(State().ProgramOptions.QuestionFontSize, 8);
  SetOption(u"DisplaySmallFonts"_s, u"0"_s);
  Load();
  EXPECT_EQ(State().ProgramOptions.QuestionFontSize, 12);
}

TEST_F(ProgramSettingsTest, AStoredTextThatIsNoNumberIsATypeMismatchNamingItsKey) {
  SetOption(u"AlarmSetting"_s, u"on"_s);
  try {
    Load();
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.Detail(), u"Options/AlarmSetting is \"on\", not a number"_s);
  }
}

TEST_F(ProgramSettingsTest, AByteOutOfRangeOverflows) {
  Choose(u"Mode"_s, u"256"_s);
  EXPECT_RUNTIME_ERROR(Load(), ErrorNumber::Overflow);
}

TEST_F(ProgramSettingsTest, TheFirstPlacementIsTheDefaultOne) {
  const WindowPlacement placement = program.Settings().LoadWindowPlacement();
  EXPECT_FALSE(placement.Maximized);
  ExpectPlace(placement, 1000, 1000, 11500, 7000);
}

TEST_F(ProgramSettingsTest, APlacementComesBackAsItWasSaved) {
  program.Settings().SaveWindowPlacement({false, 1234.5F, -15, 9000, 7215});
  EXPECT_EQ(settings.writes,
            (QStringList{u"Settings/MainLeft=1234.5"_s, u"Settings/MainTop=-15"_s,
                         u"Settings/MainWidth=9000"_s, u"Settings/MainHeight=7215"_s,
                         u"Settings/Maximized=0"_s}));
  const WindowPlacement placement = program.Settings().LoadWindowPlacement();
  EXPECT_EQ(placement.MainLeft, 1234.5F);
  EXPECT_EQ(placement.MainTop, -15);
}

TEST_F(ProgramSettingsTest, ClosingMaximizedKeepsTheLastNormalPlacement) {
  program.Settings().SaveWindowPlacement({false, 100, 200, 9000, 7000});
  settings.writes.clear();
  program.Settings().SaveWindowPlacement({true, 0, 0, 30000, 20000});
  EXPECT_EQ(settings.writes, QStringList{u"Settings/Maximized=1"_s});
  EXPECT_EQ(settings.values[u"Settings/MainWidth"_s], u"9000"_s);
  const WindowPlacement placement = program.Settings().LoadWindowPlacement();
  EXPECT_TRUE(placement.Maximized);
  ExpectPlace(placement, 100, 200, 9000, 7000);
}

TEST_F(ProgramSettingsTest, APlaceThatIsNoNumberIsATypeMismatchUnlessTheWindowIsMaximized) {
  settings.values[u"Settings/MainLeft"_s] = u"left"_s;
  EXPECT_RUNTIME_ERROR(static_cast<void>(program.Settings().LoadWindowPlacement()),
                       ErrorNumber::TypeMismatch);
  settings.values[u"Settings/Maximized"_s] = u"1"_s;
  EXPECT_EQ(program.Settings().LoadWindowPlacement().MainLeft, 1000);
}

}  // namespace
}  // namespace tessaly::test
