#include "session/study_session.h"

#include <gtest/gtest.h>

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr std::int16_t kRight = 0;
constexpr std::int16_t kWrong = 1;

class StudySessionTest : public ProgramTest {
protected:
  StudySessionTest() { bank.AddQuestions(u"01Part1"_s, 1, 3, TestBank::SubjectName(5)); }

  void Answer(std::int16_t chosen) { Session().GradeAnswer(chosen); }
  [[nodiscard]] QString Row(int no) { return bank.StatusRow(u"01Part1"_s, no); }
};

TEST_F(StudySessionTest, BeginShowsTheFirstQuestionAndEntersRunning) {
  Begin();
  EXPECT_TRUE(Session().IsRunning());
  EXPECT_EQ(Feedback(), u"     Question #1"_s);
  EXPECT_EQ(Question(), u"Question 1"_s);
  EXPECT_TRUE(view.IsVisible(Box::txtRightWrong));
  EXPECT_TRUE(view.IsVisible(Box::txtQuestion));
  EXPECT_FALSE(view.IsVisible(Box::txtAnswer));
  EXPECT_TRUE(view.buttonsVisible);
  EXPECT_TRUE(view.trueFalse);
  EXPECT_EQ(view.boxes.at(Box::txtAnswered), u"U"_s);
  EXPECT_EQ(view.boxes.at(Box::txtHintLink), u"Publication 1"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I (Subject 05)"_s);
  EXPECT_FALSE(view.commands.at(Command::mnuFileBegin));
  EXPECT_FALSE(view.commands.at(Command::mnuFileNext));
  EXPECT_TRUE(view.commands.at(Command::mnuFileClose));
  EXPECT_FALSE(view.buttons.at(ToolButton::Mode));
  EXPECT_TRUE(view.buttons.at(ToolButton::Stop));
}

TEST_F(StudySessionTest, ACorrectAnswerIsWrittenCountedAndPraised) {
  Begin();
  Answer(kRight);
  EXPECT_EQ(Feedback(), u"     Nice Job!  'True' is the correct answer for Question #1!"_s);
  EXPECT_EQ(view.feedbackColour, BoxColour::Green);
  EXPECT_TRUE(view.IsVisible(Box::txtAnswer));
  EXPECT_FALSE(view.buttonsVisible);
  EXPECT_TRUE(view.commands.at(Command::mnuFileNext));
  EXPECT_TRUE(view.buttons.at(ToolButton::Next));
  Session().EndSession();
  EXPECT_EQ(Row(1), u"C U P 1 1"_s);
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"1 1 0 0"_s);
}

TEST_F(StudySessionTest, AWrongAnswerNamesTheCorrectOne) {
  Begin();
  Answer(kWrong);
  EXPECT_EQ(
      Feedback(),
      u"     'False' is an incorrect answer for Question #1.  The correct answer is 'True'."_s);
  EXPECT_EQ(view.feedbackColour, BoxColour::Red);
  EXPECT_TRUE(view.commands.at(Command::mnuFileResearch));
  Session().EndSession();
  EXPECT_EQ(Row(1), u"I U F 1 0"_s);
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"1 0 0 0"_s);
}

TEST_F(StudySessionTest, AnAnswerIsOnTheDiskBeforeTheSessionEnds) {
  Begin();
  Answer(kRight);
  // A copy of the file is what another process would find after a crash.
  const QString copy = bank.WorkingFolder() + u"/copy.mdb"_s;
  ASSERT_TRUE(QFile::copy(bank.Paths().AnswersDbPath, copy));
  Workspace other;
  const Database database = other.OpenDatabase(copy, bank.Paths().DbConnect);
  Recordset row = database.OpenTable(u"01Part1"_s);
  EXPECT_EQ(row.Text(u"TutorialMode"_s), u"C"_s);
  Recordset subjects = database.OpenTable(u"SubjectStats"_s);
  subjects.SetAbsolutePosition(5);
  EXPECT_EQ(subjects.Integer(u"TMAsked"_s), 1);
}

TEST_F(StudySessionTest, NextShowsTheFollowingQuestionAndWaitsForItsAnswer) {
  Begin();
  Answer(kRight);
  Session().NextQuestion();
  EXPECT_EQ(Question(), u"Question 2"_s);
  EXPECT_FALSE(view.IsVisible(Box::txtAnswer));
  EXPECT_TRUE(view.buttonsVisible);
  EXPECT_FALSE(view.commands.at(Command::mnuFileNext));
  EXPECT_FALSE(view.buttons.at(ToolButton::Next));
  EXPECT_FALSE(State().Answered);
}

TEST_F(StudySessionTest, NextOnTheLastRowEndsTheSessionThoughQuestionsWereSkipped) {
  Begin();
  Session().Skip();
  Answer(kRight);
  Session().NextQuestion();
  Answer(kRight);
  Session().NextQuestion();
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly - 2002 Edition|All questions in this section have "
                                     u"been answered."_s});
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_FALSE(view.buttonsVisible);
  EXPECT_FALSE(view.commands.at(Command::mnuFileResearch));
  EXPECT_TRUE(view.commands.at(Command::mnuFileBegin));
  EXPECT_EQ(Row(1), u"U U U 0 0"_s);
}

TEST_F(StudySessionTest, SkippingTheLastRowWrapsToTheFirstUnansweredQuestion) {
  Begin();
  Answer(kRight);
  Session().NextQuestion();
  Session().Skip();
  EXPECT_EQ(Question(), u"Question 3"_s);
  Session().Skip();
  EXPECT_EQ(Question(), u"Question 2"_s);
}

TEST_F(StudySessionTest, ASectionWithNothingLeftSaysSoAndEnds) {
  bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C'"_s);
  Begin();
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly Section Information|All questions in this section "
                                     u"have been answered."_s});
  EXPECT_EQ(boxes.lastIcon, BoxIcon::Information);
  EXPECT_FALSE(Session().IsRunning());
}

TEST_F(StudySessionTest, MissedQuestionsWithNoneMissedSayAnsweredCorrectly) {
  for (const QString& type : {u"1"_s, u"2"_s}) {
    boxes.shown.clear();
    bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C', PassFail = 'P'"_s);
    Choose(u"QuestionType"_s, type);
    Begin();
    EXPECT_EQ(boxes.shown, QStringList{u"Tessaly Section Information|All questions in this "
                                       u"section have been answered correctly."_s});
  }
}

TEST_F(StudySessionTest, ASectionCountedAsMissedButAnsweredInThisModeEndsWithTheMessage) {
  bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C', PassFail = 'F'"_s);
  Choose(u"QuestionType"_s, u"2"_s);
  Begin();
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly Section Information|All questions in this section "
                                     u"have been answered correctly."_s});
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_FALSE(view.buttonsVisible);
}

TEST_F(StudySessionTest, AQuestionWithoutTextCanStillBeAnswered) {
  bank.RunOnQuestions(u"UPDATE \"01Part1\" SET Question = NULL, AnswerText = NULL"_s);
  Begin();
  EXPECT_EQ(Question(), u"This question is not available in the current database release."_s);
  Answer(kRight);
  EXPECT_EQ(view.boxes.at(Box::txtAnswer),
            u"Explanation of the answer is not available in the current database release."_s);
  Session().EndSession();
  EXPECT_EQ(Row(1), u"C U P 1 1"_s);
}

TEST_F(StudySessionTest, AStatusRowWithoutAQuestionCanBeSkippedButNotGraded) {
  bank.RunOnQuestions(u"DELETE FROM \"01Part1\" WHERE QuestionNo = '1'"_s);
  Begin();
  EXPECT_EQ(Question(), u"This question is not available in the current database release."_s);
  EXPECT_RUNTIME_ERROR(Answer(kRight), ErrorNumber::TypeMismatch);
  Session().Skip();
  EXPECT_EQ(Question(), u"Question 2"_s);
  Session().EndSession();
  EXPECT_EQ(Row(1), u"U U U 0 0"_s);
}

TEST_F(StudySessionTest, ASubjectThatMatchesNoneIsGradedAndNeverWritten) {
  bank.RunOnQuestions(u"UPDATE \"01Part1\" SET Subject = 'Unheard of'"_s);
  Begin();
  EXPECT_EQ(State().Subjects.SubjectIndex, kUnknownSubject);
  Answer(kRight);
  Session().EndSession();
  EXPECT_EQ(Row(1), u"C U P 1 1"_s);
  EXPECT_EQ(bank.ValueInAnswers(u"SELECT sum(TMAsked) FROM SubjectStats"_s).toInt(), 0);
  EXPECT_EQ(State().Subjects.SubjectIndex, 87);
}

TEST_F(StudySessionTest, ANullSubjectShowsAsNone) {
  bank.RunOnQuestions(u"UPDATE \"01Part1\" SET Subject = NULL"_s);
  Begin();
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I"_s);
}

TEST_F(StudySessionTest, FullCountersOverflowAndChangeNothing) {
  bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TimesAsked = 32767"_s);
  Begin();
  EXPECT_RUNTIME_ERROR(Answer(kRight), ErrorNumber::Overflow);
  EXPECT_TRUE(view.buttonsVisible);
  EXPECT_EQ(Feedback(), u"     Question #1"_s);
  Session().EndSession();
  EXPECT_EQ(Row(1), u"U U U 32767 0"_s);
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"0 0 0 0"_s);
}

TEST_F(StudySessionTest, AFullSubjectCounterOverflows) {
  bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 32767"_s);
  Begin();
  EXPECT_RUNTIME_ERROR(Answer(kRight), ErrorNumber::Overflow);
  Session().EndSession();
  EXPECT_EQ(Row(1), u"U U U 0 0"_s);
}

TEST_F(StudySessionTest, EndWritesEverySubjectsTotals) {
  bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 4, TMCorrect = 3, EMAsked = 2"_s);
  Begin();
  Answer(kRight);
  Session().EndSession();
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"5 4 2 0"_s);
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(86)), u"4 3 2 0"_s);
}

TEST_F(StudySessionTest, ABeginThatFailsIsIdleAgain) {
  program.Prepare();
  ASSERT_TRUE(QFile::remove(bank.Paths().QuestionsDbPath));
  EXPECT_RUNTIME_ERROR(Session().BeginSession(), ErrorNumber::FileNotFound);
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_TRUE(view.commands.at(Command::mnuFileBegin));
  EXPECT_FALSE(view.commands.at(Command::mnuFileClose));
}

TEST_F(StudySessionTest, CommandsOfARunningSessionDoNothingWhenIdle) {
  program.Prepare();
  Session().NextQuestion();
  Session().Skip();
  Session().EndSession();
  Answer(kRight);
  EXPECT_TRUE(boxes.shown.isEmpty());
  EXPECT_EQ(Row(1), u"U U U 0 0"_s);
}

TEST_F(StudySessionTest, FourChoicesBeginAfterTheTrueFalseQuestions) {
  struct Case {
    QString table, section;
    int no;
    bool trueFalse;
  };
  for (const Case& c :
       {Case{u"01Part1"_s, u"0"_s, 20, true}, Case{u"01Part1"_s, u"0"_s, 21, false},
        Case{u"01Part4"_s, u"3"_s, 40, true}, Case{u"01Part4"_s, u"3"_s, 41, false}}) {
    bank.RunOnAnswers(u"DELETE FROM \"%1\""_s.arg(c.table));
    bank.AddQuestions(c.table, c.no, c.no, TestBank::SubjectName(1));
    Choose(u"Section"_s, c.section);
    Begin();
    EXPECT_EQ(view.trueFalse, c.trueFalse) << c.no;
    Session().EndSession();
  }
}

TEST_F(StudySessionTest, RowsComeInNumberOrderWhateverTheirOrderInTheTable) {
  bank.RunOnAnswers(u"DELETE FROM \"01Part1\""_s);
  for (const int no : {3, 1, 2}) {
    bank.RunOnAnswers(u"INSERT INTO \"01Part1\" VALUES (?, 'U', 'U', 'U', 0, 0)"_s, {no});
  }
  Begin();
  for (const QString& expected : {u"Question 1"_s, u"Question 2"_s, u"Question 3"_s}) {
    EXPECT_EQ(Question(), expected);
    Answer(kRight);
    Session().NextQuestion();
  }
}

class EvaluationTest : public StudySessionTest {
protected:
  EvaluationTest() { Choose(u"Mode"_s, u"1"_s); }
};

TEST_F(EvaluationTest, AnAnswerGoesOnAtOnceWithItsResultInTheStatusBar) {
  Begin();
  Answer(kRight);
  EXPECT_EQ(Question(), u"Question 2"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"Question #1 was answered CORRECTLY"_s);
  EXPECT_FALSE(view.IsVisible(Box::txtAnswer));
  EXPECT_TRUE(view.buttonsVisible);
  Answer(kWrong);
  EXPECT_EQ(PanelText(Panel::Selection), u"Question #2 was answered INCORRECTLY"_s);
}

TEST_F(EvaluationTest, TimesAskedIsNeverWrittenAndTimesCorrectIs) {
  Begin();
  Answer(kRight);
  Answer(kWrong);
  Session().EndSession();
  EXPECT_EQ(Row(1), u"U C P 0 1"_s);
  EXPECT_EQ(Row(2), u"U I F 0 0"_s);
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"0 0 2 1"_s);
}

TEST_F(EvaluationTest, ACorrectAnswerAfterAWrongOneStaysFailed) {
  Begin();
  Answer(kWrong);
  Answer(kRight);
  Session().EndSession();
  EXPECT_EQ(Row(2), u"U C F 0 1"_s);
}

TEST_F(EvaluationTest, TheFailureCarriesOverIntoTheNextSession) {
  Begin();
  Answer(kWrong);
  Session().EndSession();
  Session().BeginSession();
  Answer(kRight);
  Session().EndSession();
  EXPECT_EQ(Row(2), u"U C F 0 1"_s);
}

TEST_F(EvaluationTest, TheLastAnswerEndsTheSessionWithItsMessageOnce) {
  Begin();
  QString panelDuringMessage;
  boxes.whenShown = [&] { panelDuringMessage = PanelText(Panel::Selection); };
  for (int i = 0; i < 3; ++i) {
    Answer(kRight);
  }
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly - 2002 Edition|All questions in this section have "
                                     u"been answered."_s});
  EXPECT_EQ(panelDuringMessage, u"Question #3 was answered CORRECTLY"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I"_s);
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_FALSE(view.buttonsVisible);
}

TEST_F(EvaluationTest, MissedBySectionAsksForWhatEitherModeFailed) {
  bank.RunOnAnswers(
      u"UPDATE \"01Part1\" SET EvalMode = 'C', PassFail = 'F' WHERE QuestionNo = 2"_s);
  Choose(u"QuestionType"_s, u"1"_s);
  Begin();
  EXPECT_EQ(Question(), u"Question 2"_s);
}

TEST_F(StudySessionTest, ATutorialAnswerAfterAFailureIsPassed) {
  Choose(u"Mode"_s, u"0"_s);
  Begin();
  Answer(kWrong);
  Session().NextQuestion();
  Answer(kRight);
  Session().EndSession();
  EXPECT_EQ(Row(2), u"C U P 1 1"_s);
}

}  // namespace
}  // namespace tessaly::test
