#include <gtest/gtest.h>

#include "catalogue/exam_catalogue.h"
#include "session/subject_walk.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr std::int16_t kRight = 0;
constexpr std::int16_t kWrong = 1;

class SubjectStudyTest : public ProgramTest {
protected:
  SubjectStudyTest() {
    Choose(u"Method"_s, u"1"_s);
    Choose(u"Subject"_s, subject);
  }

  void Answer(std::int16_t chosen) { Session().GradeAnswer(chosen); }
  void AnswerAndGoOn(std::int16_t chosen) {
    Answer(chosen);
    Session().NextQuestion();
  }
  // The table on screen and its question, as "00Part2 5".
  [[nodiscard]] QString OnScreen() {
    return State().CurrentTableName + u' ' + view.BoxText(Box::txtQNo);
  }
  void Ask(const QString& table, int no) { bank.AddQuestions(table, no, no, subject); }

  const QString subject = TestBank::SubjectName(7);
};

TEST_F(SubjectStudyTest, TheWalkGoesThroughTheTablesInCatalogueOrder) {
  Ask(u"01Part1"_s, 30);
  Ask(u"01Part3"_s, 5);
  Ask(u"98Part4"_s, 50);
  bank.AddQuestions(u"01Part2"_s, 1, 5, TestBank::SubjectName(8));
  Begin();
  EXPECT_EQ(OnScreen(), u"01Part1 30"_s);
  EXPECT_FALSE(view.trueFalse);
  AnswerAndGoOn(kRight);
  EXPECT_EQ(OnScreen(), u"01Part3 5"_s);
  EXPECT_TRUE(view.trueFalse);
  AnswerAndGoOn(kRight);
  EXPECT_EQ(OnScreen(), u"98Part4 50"_s);
  EXPECT_EQ(State().Selection.Exam, 3);
  EXPECT_EQ(State().Selection.Section, 3);
  AnswerAndGoOn(kRight);
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly - 2002 Edition|There are no unanswered questions "
                                     u"concerning Subject 07."_s});
  EXPECT_EQ(bank.SubjectRow(subject), u"3 3 0 0"_s);
  EXPECT_EQ(bank.StatusRow(u"98Part4"_s, 50), u"C U P 1 1"_s);
}

TEST_F(SubjectStudyTest, ASubjectWithoutQuestionsEndsAtBeginWithTheMessageOfItsType) {
  const std::array<QString, 3> texts{
      u"There are no unanswered questions concerning Subject 07."_s,
      u"There are no incorrectly answered questions concerning Subject 07."_s,
      u"There are no incorrectly answered or unanswered questions concerning Subject 07."_s};
  for (int type = 0; type < 3; ++type) {
    boxes.shown.clear();
    Choose(u"QuestionType"_s, QString::number(type));
    Begin();
    EXPECT_EQ(boxes.shown,
              QStringList{u"Tessaly - 2002 Edition|"_s + texts[static_cast<std::size_t>(type)]});
    EXPECT_FALSE(Session().IsRunning());
    EXPECT_FALSE(view.buttonsVisible);
  }
}

TEST_F(SubjectStudyTest, NoSubjectSaysSo) {
  Choose(u"Subject"_s, u""_s);
  bank.AddQuestions(u"01Part1"_s, 1, 2, subject);
  Begin();
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly - 2002 Edition|No study subject was selected."_s});
}

TEST_F(SubjectStudyTest, MissedQuestionsAreThoseOfThisModeWhateverPassFailSays) {
  bank.AddQuestions(u"01Part1"_s, 1, 1, subject, {u"U"_s, u"I"_s, u"F"_s, 1, 0});
  bank.AddQuestions(u"01Part1"_s, 2, 2, subject, {u"I"_s, u"C"_s, u"P"_s, 1, 0});
  Choose(u"QuestionType"_s, u"1"_s);
  Begin();
  EXPECT_EQ(OnScreen(), u"01Part1 2"_s);
}

TEST_F(SubjectStudyTest, AQuestionAlreadyAnsweredIsPassedOver) {
  bank.AddQuestions(u"01Part1"_s, 1, 3, subject, {u"C"_s, u"U"_s, u"P"_s, 1, 1});
  bank.AddQuestions(u"01Part1"_s, 4, 4, subject);
  Begin();
  EXPECT_EQ(OnScreen(), u"01Part1 4"_s);
}

TEST_F(SubjectStudyTest, ATableWhoseQuestionsAreAllAnsweredEndsTheWalk) {
  bank.AddQuestions(u"01Part1"_s, 1, 2, subject, {u"C"_s, u"U"_s, u"P"_s, 1, 1});
  Ask(u"01Part2"_s, 1);
  Begin();
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(SubjectStudyTest, ReachingAQuestionAtTheCheckpointEndsTheSession) {
  Ask(u"01Part1"_s, 1);
  Ask(u"96Part1"_s, 1);
  Begin();
  AnswerAndGoOn(kRight);
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_EQ(bank.StatusRow(u"96Part1"_s, 1), u"U U U 0 0"_s);
}

TEST_F(SubjectStudyTest, ASkippedQuestionLetsTheWalkGoAroundAgain) {
  Ask(u"01Part1"_s, 1);
  Ask(u"01Part1"_s, 2);
  Ask(u"96Part3"_s, 9);
  Begin();
  Session().Skip();
  EXPECT_EQ(OnScreen(), u"01Part1 2"_s);
  AnswerAndGoOn(kRight);
  EXPECT_EQ(OnScreen(), u"96Part3 9"_s);
  AnswerAndGoOn(kRight);
  EXPECT_EQ(OnScreen(), u"01Part1 1"_s);
}

TEST_F(SubjectStudyTest, SkippingTheOnlyQuestionOfATableShowsItAgain) {
  Ask(u"01Part1"_s, 1);
  Begin();
  Session().Skip();
  EXPECT_EQ(OnScreen(), u"01Part1 1"_s);
  EXPECT_TRUE(view.buttonsVisible);
}

TEST_F(SubjectStudyTest, SkippingInEvaluationModeSaysSoInTheStatusBar) {
  Choose(u"Mode"_s, u"1"_s);
  Ask(u"01Part1"_s, 1);
  Ask(u"01Part1"_s, 2);
  Begin();
  Session().Skip();
  EXPECT_EQ(PanelText(Panel::Selection), u"QUESTION #1 WAS NOT ANSWERED"_s);
}

TEST_F(SubjectStudyTest, MissedQuestionsComeAroundAgainUntilAnsweredCorrectly) {
  Choose(u"QuestionType"_s, u"2"_s);
  Ask(u"01Part1"_s, 1);
  Ask(u"01Part1"_s, 2);
  Begin();
  AnswerAndGoOn(kWrong);
  AnswerAndGoOn(kRight);
  EXPECT_EQ(OnScreen(), u"01Part1 1"_s);
}

TEST_F(SubjectStudyTest, AWalkThatGoesAroundInVainIsOver) {
  // Answering a missed question correctly never makes the two counters equal.
  Choose(u"QuestionType"_s, u"1"_s);
  bank.AddQuestions(u"01Part2"_s, 1, 1, subject, {u"I"_s, u"U"_s, u"F"_s, 1, 0});
  Begin();
  AnswerAndGoOn(kRight);
  EXPECT_FALSE(Session().IsRunning());
  EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(SubjectStudyTest, AnApostropheInTheSubjectIsSafe) {
  Choose(u"Subject"_s, u"Employer's Taxes"_s);
  bank.AddQuestions(u"01Part1"_s, 3, 3, u"Employer's Taxes"_s);
  Begin();
  EXPECT_EQ(OnScreen(), u"01Part1 3"_s);
}

TEST_F(SubjectStudyTest, NoStudyTimeIsShownOrStored) {
  SetOption(u"TimerStatus"_s, u"1"_s);
  Ask(u"01Part1"_s, 1);
  Begin();
  clock.Sleep(5000);
  Session().TimerTick();
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer N/A"_s);
  Session().EndSession();
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST(SubjectWalkTest, ThePositionStartsOverBehindTheFirstTable) {
  SubjectWalk walk;
  walk.CountMove(u"01Part1"_s);
  EXPECT_EQ(walk.Position, 1);
  for (std::size_t table = 1; table < kTables.size(); ++table) {
    walk.CountMove(kTables[table]);
  }
  EXPECT_EQ(walk.Position, 24);
  EXPECT_EQ(walk.Steps, 24);
  EXPECT_TRUE(walk.WentAroundInVain());
  walk.CountMove(u"01Part1"_s);
  EXPECT_EQ(walk.Position, 1);
}

TEST(SubjectWalkTest, TheCheckpointEndsAWalkWithNothingLeft) {
  EXPECT_TRUE(NothingLeftAtCheckpoint(0, 0, 5, 2));
  EXPECT_FALSE(NothingLeftAtCheckpoint(0, 1, 5, 5));
  EXPECT_TRUE(NothingLeftAtCheckpoint(1, 3, 5, 5));
  EXPECT_FALSE(NothingLeftAtCheckpoint(2, 0, 5, 4));
}

}  // namespace
}  // namespace tessaly::test
