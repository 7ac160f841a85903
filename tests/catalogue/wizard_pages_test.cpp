#include "catalogue/wizard_pages.h"

#include <gtest/gtest.h>

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class WizardPagesTest : public ProgramTest {
protected:
  WizardPagesTest() { program.Prepare(); }

  [[nodiscard]] StudySelection& Selection() { return State().Selection; }
  [[nodiscard]] QStringList Options() const {
    QStringList captions;
    for (const QLatin1StringView option : wizard.Page().options) {
      captions.append(option);
    }
    return captions;
  }
  void Choose(int option) { EXPECT_FALSE(wizard.Next({option, 0, 0, {}})); }
  void ChooseExam(int exam, int section) {
    EXPECT_FALSE(wizard.Next({kNoOption, exam, section, u"(not read)"_s}));
  }
  void ChooseSubject(const QString& subject) {
    EXPECT_FALSE(wizard.Next({kNoOption, 5, 3, subject}));
  }
  void FinishWith(int questionType) { EXPECT_TRUE(wizard.Next({questionType, 0, 0, {}})); }

  WizardPages wizard{State(), program.Selector(), boxes};
};

TEST_F(WizardPagesTest, TheFirstPageAsksForTheModeAndHasNoWayBack) {
  EXPECT_EQ(wizard.PageNumber(), 1);
  EXPECT_EQ(wizard.Page().caption, u"Select Study Mode"_s);
  EXPECT_EQ(Options(), (QStringList{u"Tutorial mode (show explanations)"_s,
                                    u"Evaluation mode (hide explanations)"_s, QString()}));
  EXPECT_EQ(wizard.Page().lists, WizardLists::None);
  EXPECT_FALSE(wizard.Page().canGoBack);
  EXPECT_EQ(wizard.Page().nextCaption, u"&Next >"_s);
  wizard.Back();
  EXPECT_EQ(wizard.PageNumber(), 1);
}

TEST_F(WizardPagesTest, TheSecondPageAsksForTheMethod) {
  Choose(kTutorialMode);
  EXPECT_EQ(wizard.Page().caption, u"Select Study Method"_s);
  EXPECT_EQ(Options(), (QStringList{u"Study by exam section"_s, u"Study by subject"_s, QString()}));
  EXPECT_EQ(wizard.Page().lists, WizardLists::None);
  EXPECT_TRUE(wizard.Page().canGoBack);
  EXPECT_EQ(wizard.Page().nextCaption, u"&Next >"_s);
}

TEST_F(WizardPagesTest, TheThirdPageAsksForExamAndSection) {
  Choose(kTutorialMode);
  Choose(kByExamSection);
  EXPECT_EQ(wizard.Page().caption, u"Select Exam and Section"_s);
  EXPECT_EQ(Options().join(u""_s), u""_s);
  EXPECT_EQ(wizard.Page().lists, WizardLists::ExamAndSection);
  EXPECT_EQ(wizard.SelectedOption(), kNoOption);
  EXPECT_EQ(wizard.Page().nextCaption, u"&Next >"_s);
}

TEST_F(WizardPagesTest, TheThirdPageAsksForTheSubjectWhenTheStudyIsBySubject) {
  Choose(kTutorialMode);
  Choose(kBySubject);
  EXPECT_EQ(wizard.Page().caption, u"Select Subject"_s);
  EXPECT_EQ(Options().join(u""_s), u""_s);
  EXPECT_EQ(wizard.Page().lists, WizardLists::Subjects);
  ASSERT_EQ(wizard.Subjects().size(), 87U);
  EXPECT_EQ(wizard.Subjects().front(), u"Subject 00"_s);
  EXPECT_EQ(wizard.Subjects().back(), u"Subject 86"_s);
}

TEST_F(WizardPagesTest, TheFourthPageAsksForTheQuestionTypeAndFinishes) {
  Choose(kTutorialMode);
  Choose(kByExamSection);
  ChooseExam(0, 0);
  EXPECT_EQ(wizard.PageNumber(), 4);
  EXPECT_EQ(wizard.Page().caption, u"Select Question Type"_s);
  EXPECT_EQ(Options(),
            (QStringList{u"Unanswered questions"_s, u"Questions which where answered incorrectly"_s,
                         u"Unanswered and previously missed questions"_s}));
  EXPECT_TRUE(wizard.IsOptionEnabled(1));
  EXPECT_TRUE(wizard.Page().canGoBack);
  EXPECT_EQ(wizard.Page().nextCaption, u"Finish"_s);
}

TEST_F(WizardPagesTest, EveryPageOpensOnTheSelection) {
  Selection().Mode = kEvaluationMode;
  Selection().Exam = 4;
  Selection().Section = 2;
  Selection().QuestionType = kUnansweredAndMissedQuestions;
  EXPECT_EQ(wizard.SelectedOption(), kEvaluationMode);
  Choose(kEvaluationMode);
  EXPECT_EQ(wizard.SelectedOption(), kByExamSection);
  Choose(kByExamSection);
  EXPECT_EQ(wizard.SelectedExam(), 4);
  EXPECT_EQ(wizard.SelectedSection(), 2);
  ChooseExam(4, 2);
  EXPECT_EQ(wizard.SelectedOption(), kUnansweredAndMissedQuestions);
}

TEST_F(WizardPagesTest, AValueWithoutAnOptionSelectsNoneAndOneWithoutAnEntryTheFirst) {
  Selection().Mode = 2;
  Selection().QuestionType = 3;
  Selection().Exam = 6;
  Selection().Section = -1;
  EXPECT_EQ(wizard.SelectedOption(), kNoOption);
  EXPECT_EQ(wizard.SelectedExam(), 0);
  EXPECT_EQ(wizard.SelectedSection(), 0);
  Choose(kNoOption);
  EXPECT_EQ(Selection().Mode, kEvaluationMode);
  Choose(kByExamSection);
  ChooseExam(-1, -1);
  EXPECT_EQ(Selection().ExamString, u"2001 Examination"_s);
  EXPECT_EQ(wizard.SelectedOption(), kNoOption);
  FinishWith(kNoOption);
  EXPECT_EQ(Selection().QuestionType, kUnansweredAndMissedQuestions);
}

TEST_F(WizardPagesTest, EachPageIsTakenOverWhenItIsLeftWithNext) {
  Choose(kEvaluationMode);
  EXPECT_EQ(Selection().Mode, kEvaluationMode);
  EXPECT_EQ(Selection().Method, kByExamSection);
  Choose(kByExamSection);
  ChooseExam(3, 1);
  EXPECT_EQ(Selection().Exam, 3);
  EXPECT_EQ(Selection().Section, 1);
  EXPECT_EQ(Selection().ExamString, u"1998 Examination"_s);
  EXPECT_EQ(Selection().Year, u"98"_s);
  EXPECT_EQ(Selection().SectionString, u"Part II"_s);
  EXPECT_EQ(Selection().Subject, u""_s);
}

TEST_F(WizardPagesTest, GoingBackDropsTheChoiceOfThePageButNotOfTheOnesBefore) {
  Choose(kEvaluationMode);
  wizard.Back();
  EXPECT_EQ(wizard.PageNumber(), 1);
  EXPECT_EQ(wizard.SelectedOption(), kEvaluationMode);
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(WizardPagesTest, NothingIsWrittenBeforeTheFinish) {
  Choose(kEvaluationMode);
  Choose(kBySubject);
  ChooseSubject(u"Subject 07"_s);
  EXPECT_TRUE(settings.writes.isEmpty());
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I"_s);
  program.Settings().LoadSettings();
  EXPECT_EQ(Selection().Mode, kTutorialMode);
  EXPECT_EQ(Selection().Subject, u""_s);
}

TEST_F(WizardPagesTest, FinishingBySectionWritesTheSelectionAndShowsIt) {
  settings.values[u"ETimer/1996 Examination - Part IV"_s] = u"125"_s;
  State().ProgramOptions.TimerStatus = 1;
  Choose(kEvaluationMode);
  Choose(kByExamSection);
  ChooseExam(5, 3);
  FinishWith(kMissedQuestions);
  EXPECT_EQ(settings.writes,
            (QStringList{u"StudyMode/Mode=1"_s, u"StudyMode/Method=0"_s, u"StudyMode/Exam=5"_s,
                         u"StudyMode/Section=3"_s, u"StudyMode/ExamString=1996 Examination"_s,
                         u"StudyMode/Year=96"_s, u"StudyMode/SectionString=Part IV"_s,
                         u"StudyMode/QuestionType=1"_s}));
  EXPECT_EQ(State().CurrentTableName, u"96Part4"_s);
  EXPECT_EQ(State().TablePosition, 1);
  EXPECT_EQ(State().Time.Stored, u"125"_s);
  EXPECT_EQ(PanelText(Panel::Mode), u"Evaluation Mode"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"1996 Examination - Part IV"_s);
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer Enabled"_s);
}

TEST_F(WizardPagesTest, FinishingBySubjectKeepsTheStoredExamAndSection) {
  Choose(kTutorialMode);
  Choose(kBySubject);
  ChooseSubject(u"Subject 07"_s);
  FinishWith(kUnansweredQuestions);
  EXPECT_EQ(settings.writes,
            (QStringList{u"StudyMode/Mode=0"_s, u"StudyMode/Method=1"_s,
                         u"StudyMode/Subject=Subject 07"_s, u"StudyMode/QuestionType=0"_s}));
  EXPECT_EQ(Selection().ExamString, u"2001 Examination"_s);
  EXPECT_EQ(State().CurrentTableName, u"01Part1"_s);
  EXPECT_EQ(State().TablePosition, 2);
  EXPECT_EQ(PanelText(Panel::Selection), u"Study by Subject - Subject 07"_s);
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer N/A"_s);
}

TEST_F(WizardPagesTest, AnySubjectIsAcceptedAsItStands) {
  for (const QString& subject : {u""_s, u"subject 07 "_s, u"Widow's mite, 50%"_s}) {
    WizardPages fresh(State(), program.Selector(), boxes);
    EXPECT_FALSE(fresh.Next({kTutorialMode, 0, 0, {}}));
    EXPECT_FALSE(fresh.Next({kBySubject, 0, 0, {}}));
    EXPECT_FALSE(fresh.Next({kNoOption, 0, 0, subject}));
    EXPECT_TRUE(fresh.Next({kUnansweredQuestions, 0, 0, {}}));
    EXPECT_EQ(Selection().Subject, subject);
    EXPECT_EQ(settings.values.value(u"StudyMode/Subject"_s), subject);
    EXPECT_EQ(State().SubjectNames.Asked, subject + u"Asked"_s);
    EXPECT_EQ(State().SubjectNames.Correct, subject + u"Correct"_s);
  }
}

TEST_F(WizardPagesTest, BySubjectAStoredTypeOfMissedQuestionsIsSelectedDisabledAndKept) {
  Selection().QuestionType = kMissedQuestions;
  Choose(kTutorialMode);
  Choose(kBySubject);
  ChooseSubject(u"Subject 07"_s);
  EXPECT_EQ(wizard.SelectedOption(), 1);
  EXPECT_TRUE(wizard.IsOptionEnabled(0));
  EXPECT_FALSE(wizard.IsOptionEnabled(1));
  EXPECT_TRUE(wizard.IsOptionEnabled(2));
  FinishWith(wizard.SelectedOption());
  EXPECT_EQ(Selection().QuestionType, kMissedQuestions);
  EXPECT_EQ(settings.writes.last(), u"StudyMode/QuestionType=1"_s);
}

TEST_F(WizardPagesTest, AFinishThatFailsLeavesTheWizardOnItsLastPage) {
  Choose(kTutorialMode);
  Choose(kByExamSection);
  ChooseExam(0, 0);
  ASSERT_TRUE(QFile::rename(bank.Paths().AnswersDbPath, bank.Paths().AnswersDbPath + u".off"_s));
  EXPECT_RUNTIME_ERROR(static_cast<void>(wizard.Next({kUnansweredQuestions, 0, 0, {}})),
                       ErrorNumber::FileNotFound);
  EXPECT_EQ(wizard.PageNumber(), 4);
  ASSERT_TRUE(QFile::rename(bank.Paths().AnswersDbPath + u".off"_s, bank.Paths().AnswersDbPath));
  FinishWith(kUnansweredQuestions);
}

TEST_F(WizardPagesTest, DefaultAsksAndWritesTheDefaultsWithoutShowingThem) {
  bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 4, EMAsked = 2"_s);
  Choose(kEvaluationMode);
  EXPECT_TRUE(wizard.Default());
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly Study Mode|Reset Study Mode to default values?"_s});
  EXPECT_EQ(boxes.lastIcon, BoxIcon::Question);
  EXPECT_EQ(
      settings.writes,
      (QStringList{u"StudyMode/Mode=0"_s, u"StudyMode/Method=0"_s, u"StudyMode/Subject="_s,
                   u"StudyMode/QuestionType=0"_s, u"StudyMode/Exam=0"_s, u"StudyMode/Section=0"_s,
                   u"StudyMode/Subject="_s, u"StudyMode/ExamString=2001 Examination"_s,
                   u"StudyMode/Year=01"_s, u"StudyMode/SectionString=Part I (Individual)"_s}));
  EXPECT_EQ(State().Subjects.SubjectAsked.at(0), 4);
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I"_s);
  program.Selector().RefreshStatus();
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I (Individual)"_s);
}

TEST_F(WizardPagesTest, DefaultAnsweredNoChangesNothing) {
  Selection().Exam = 4;
  boxes.answers = {BoxAnswer::No};
  EXPECT_FALSE(wizard.Default());
  EXPECT_EQ(Selection().Exam, 4);
  EXPECT_TRUE(settings.writes.isEmpty());
}

}  // namespace
}  // namespace tessaly::test
