#include "catalogue/study_selector.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "store/runtime_error.h"
#include "tests/support/fakes.h"
#include "tests/support/printers.h"
#include "tests/support/test_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// A study selection of 1998, Part II.
class StudySelectorTest : public ::testing::Test {
protected:
  StudySelectorTest() {
    state.Paths = bank.Paths();
    state.CurrentTableName = u"(before)"_s;
    state.Selection.Exam = 3;
    state.Selection.Section = 1;
    state.Selection.ExamString = u"1998 Examination"_s;
    state.Selection.SectionString = u"Part II"_s;
    state.Selection.Year = u"98"_s;
  }
  void StudyBySubject(const QString& subject) {
    state.Selection.Method = kBySubject;
    state.Selection.Subject = subject;
  }
  [[nodiscard]] QString PanelText(Panel panel) const {
    const auto found = view.panels.find(panel);
    return found == view.panels.end() ? u"(untouched)"_s : found->second;
  }
  [[nodiscard]] QString SelectionTip() const {
    const auto found = view.toolTips.find(Panel::Selection);
    return found == view.toolTips.end() ? u"(untouched)"_s : found->second;
  }

  TestBank bank;
  Workspace workspace;
  FakeSettings settings;
  FakeView view;
  ProgramState state;
  StudySelector selector{state, settings, workspace, view};
};

TEST_F(StudySelectorTest, TheCurrentTableFollowsExamAndSection) {
  state.TablePosition = 9;
  selector.SetCurrentTable();
  EXPECT_EQ(state.CurrentTableName, u"98Part2"_s);
  EXPECT_EQ(state.TablePosition, 1);
  EXPECT_EQ(PanelText(Panel::Selection), u"1998 Examination - Part II"_s);
}

TEST_F(StudySelectorTest, AnExamOrSectionOutsideTheCatalogueKeepsTheTable) {
  const std::pair<std::uint8_t, std::int16_t> places[] = {{6, 0}, {255, 0}, {0, 4}, {0, -1}};
  for (const auto& [exam, section] : places) {
    state.Selection.Exam = exam;
    state.Selection.Section = section;
    view.panels.clear();
    selector.SetCurrentTable();
    EXPECT_EQ(state.CurrentTableName, u"(before)"_s);
    EXPECT_EQ(PanelText(Panel::Selection), u"1998 Examination - Part II"_s);
  }
}

TEST_F(StudySelectorTest, BySubjectTheFirstTableIsCurrentAndTheSecondNext) {
  StudyBySubject(u"Gifts"_s);
  selector.SetCurrentTable();
  EXPECT_EQ(state.CurrentTableName, u"01Part1"_s);
  EXPECT_EQ(state.TablePosition, 2);
  EXPECT_EQ(PanelText(Panel::Selection), u"Study by Subject - Gifts"_s);
}

TEST_F(StudySelectorTest, WithoutASubjectTheSessionsTextKeepsItsDash) {
  StudyBySubject({});
  selector.SetCurrentTable();
  EXPECT_EQ(PanelText(Panel::Selection), u"Study by Subject - "_s);
  selector.RefreshStatus();
  EXPECT_EQ(PanelText(Panel::Selection), u"Study by Subject"_s);
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer N/A"_s);
}

TEST_F(StudySelectorTest, TheTablesFollowEachOtherAndTheLastIsTheEnd) {
  selector.SetCurrentTable();
  for (const QLatin1StringView table : kTables) {
    selector.NextTable();
    EXPECT_EQ(state.CurrentTableName, table);
  }
  EXPECT_EQ(state.TablePosition, 25);
  selector.NextTable();
  EXPECT_EQ(state.CurrentTableName, u"96Part4"_s);
  EXPECT_EQ(state.TablePosition, 25);
}

TEST_F(StudySelectorTest, APositionBelowTheFirstChangesNothing) {
  state.TablePosition = 0;
  selector.NextTable();
  EXPECT_EQ(state.CurrentTableName, u"(before)"_s);
  EXPECT_EQ(state.TablePosition, 0);
}

TEST_F(StudySelectorTest, TheYearFollowsTheExamsCaption) {
  state.Selection.ExamString = u"2000 Examination"_s;
  selector.SetYearFromExamString();
  EXPECT_EQ(state.Selection.Year, u"00"_s);
}

TEST_F(StudySelectorTest, ACaptionOfNoExamKeepsTheYear) {
  for (const QString& caption : {u"2001 Exam"_s, u"2001 EXAMINATION"_s, u""_s}) {
    state.Selection.ExamString = caption;
    selector.SetYearFromExamString();
    EXPECT_EQ(state.Selection.Year, u"98"_s);
  }
}

TEST_F(StudySelectorTest, AResetSetsEveryFieldToItsDefault) {
  StudyBySubject(u"Gifts"_s);
  state.Selection.Mode = kEvaluationMode;
  state.Selection.QuestionType = kMissedQuestions;
  selector.ResetStudySelection();
  const StudySelection& selection = state.Selection;
  EXPECT_EQ(selection.Mode, 0);
  EXPECT_EQ(selection.Method, 0);
  EXPECT_EQ(selection.Exam, 0);
  EXPECT_EQ(selection.Section, 0);
  EXPECT_EQ(selection.ExamString, u"2001 Examination"_s);
  EXPECT_EQ(selection.SectionString, u"Part I (Individual)"_s);
  EXPECT_EQ(selection.Year, u"01"_s);
  EXPECT_EQ(selection.Subject, u""_s);
  EXPECT_EQ(selection.QuestionType, 0);
}

TEST_F(StudySelectorTest, AResetWritesEveryFieldInOrder) {
  selector.ResetStudySelection();
  EXPECT_EQ(
      settings.writes,
      (QStringList{u"StudyMode/Mode=0"_s, u"StudyMode/Method=0"_s, u"StudyMode/Subject="_s,
                   u"StudyMode/QuestionType=0"_s, u"StudyMode/Exam=0"_s, u"StudyMode/Section=0"_s,
                   u"StudyMode/Subject="_s, u"StudyMode/ExamString=2001 Examination"_s,
                   u"StudyMode/Year=01"_s, u"StudyMode/SectionString=Part I (Individual)"_s}));
  EXPECT_EQ(PanelText(Panel::Selection), u"(untouched)"_s);
  selector.RefreshStatus();
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I (Individual)"_s);
}

TEST_F(StudySelectorTest, SavingBySectionWritesTheSectionAndReadsItsTime) {
  state.Selection.QuestionType = kUnansweredAndMissedQuestions;
  state.Selection.Subject = u"Left from before"_s;
  settings.values[u"TTimer/1998 Examination - Part II"_s] = u"61"_s;
  settings.values[u"ETimer/1998 Examination - Part II"_s] = u"3600"_s;
  selector.SaveStudySelection();
  EXPECT_EQ(settings.writes,
            (QStringList{u"StudyMode/Mode=0"_s, u"StudyMode/Method=0"_s, u"StudyMode/Exam=3"_s,
                         u"StudyMode/Section=1"_s, u"StudyMode/ExamString=1998 Examination"_s,
                         u"StudyMode/Year=98"_s, u"StudyMode/SectionString=Part II"_s,
                         u"StudyMode/QuestionType=2"_s}));
  EXPECT_EQ(state.Time.Stored, u"61"_s);
  state.Selection.Mode = kEvaluationMode;
  selector.SaveStudySelection();
  EXPECT_EQ(state.Time.Stored, u"3600"_s);
}

TEST_F(StudySelectorTest, ASectionWithoutATimeLeavesItEmpty) {
  state.Time.Stored = u"61"_s;
  selector.SaveStudySelection();
  EXPECT_EQ(state.Time.Stored, u""_s);
}

TEST_F(StudySelectorTest, SavingBySubjectKeepsTheStoredSectionAndTime) {
  StudyBySubject(u"Gifts, in trust"_s);
  state.Time.Stored = u"61"_s;
  selector.SaveStudySelection();
  EXPECT_EQ(settings.writes,
            (QStringList{u"StudyMode/Mode=0"_s, u"StudyMode/Method=1"_s,
                         u"StudyMode/Subject=Gifts, in trust"_s, u"StudyMode/QuestionType=0"_s}));
  EXPECT_EQ(state.Time.Stored, u"61"_s);
}

TEST_F(StudySelectorTest, SavingReadsTheSubjectsOfTheMode) {
  bank.RunOnAnswers(
      u"UPDATE SubjectStats SET TMAsked = 4, TMCorrect = 3, EMAsked = 2, "
      u"EMCorrect = 1 WHERE Subject = 'Subject 86'"_s);
  selector.SaveStudySelection();
  EXPECT_EQ(state.Subjects.SubjectName.at(86), u"Subject 86"_s);
  EXPECT_EQ(state.Subjects.SubjectAsked.at(86), 4);
  EXPECT_EQ(state.Subjects.SubjectCorrect.at(86), 3);
  state.Selection.Mode = kEvaluationMode;
  selector.SaveStudySelection();
  EXPECT_EQ(state.Subjects.SubjectAsked.at(86), 2);
  EXPECT_EQ(state.Subjects.SubjectCorrect.at(86), 1);
}

TEST_F(StudySelectorTest, TheModeHasAPanelOfItsOwn) {
  selector.ShowModeCaption();
  EXPECT_EQ(PanelText(Panel::Mode), u"Tutorial Mode"_s);
  state.Selection.Mode = kEvaluationMode;
  selector.ShowModeCaption();
  EXPECT_EQ(PanelText(Panel::Mode), u"Evaluation Mode"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"(untouched)"_s);
}

TEST_F(StudySelectorTest, ARefreshWritesSelectionTipAndTimer) {
  state.ProgramOptions.TimerStatus = 1;
  state.QuestionSubject = u"Partnerships"_s;
  selector.RefreshStatus();
  EXPECT_EQ(PanelText(Panel::Selection), u"1998 Examination - Part II (Partnerships)"_s);
  EXPECT_EQ(SelectionTip(), u"Study method, year, and section being studied"_s);
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer Enabled"_s);
  EXPECT_EQ(PanelText(Panel::Mode), u"(untouched)"_s);
}

TEST_F(StudySelectorTest, ARefreshWithAnUnknownMethodOrTimerOptionWritesNothing) {
  state.ProgramOptions.TimerStatus = 2;
  selector.RefreshStatus();
  state.ProgramOptions.TimerStatus = 0;
  state.Selection.Method = 2;
  selector.RefreshStatus();
  EXPECT_EQ(PanelText(Panel::Selection), u"(untouched)"_s);
  EXPECT_EQ(PanelText(Panel::Timer), u"(untouched)"_s);
  EXPECT_EQ(SelectionTip(), u"(untouched)"_s);
}

TEST_F(StudySelectorTest, TheSelectionIsRefreshedWithoutTheTimer) {
  StudyBySubject(u"Gifts"_s);
  selector.RefreshSelectionPanel();
  EXPECT_EQ(PanelText(Panel::Selection), u"Study by Subject - Gifts"_s);
  EXPECT_EQ(SelectionTip(), u"Study method and subject being studied"_s);
  EXPECT_EQ(PanelText(Panel::Timer), u"(untouched)"_s);
}

}  // namespace
}  // namespace tessaly::test
