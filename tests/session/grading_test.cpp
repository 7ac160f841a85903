#include "session/grading.h"

#include <gtest/gtest.h>

#include "session/feedback_texts.h"
#include "session/question_display.h"
#include "session/question_selection.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

AnswerToGrade CorrectAnswer(std::uint8_t mode) {
  AnswerToGrade answer;
  answer.Mode = mode;
  answer.Chosen = 2;
  answer.AnswerNumber = 2;
  answer.WasUnanswered = true;
  answer.TimesAsked = 5;
  answer.TimesCorrect = 3;
  return answer;
}

AnswerToGrade WrongAnswer(std::uint8_t mode) {
  AnswerToGrade answer = CorrectAnswer(mode);
  answer.Chosen = 1;
  return answer;
}

TEST(GradingTest, TutorialModeCountsTheRow) {
  const StatusChange correct = GradeRow(CorrectAnswer(0));
  EXPECT_EQ(correct.StatusField, "TutorialMode"_L1);
  EXPECT_EQ(correct.Status, "C"_L1);
  EXPECT_EQ(correct.TimesAsked, 6);
  EXPECT_EQ(correct.TimesCorrect, 4);
  EXPECT_EQ(correct.PassFail, "P"_L1);
  const StatusChange wrong = GradeRow(WrongAnswer(0));
  EXPECT_EQ(wrong.Status, "I"_L1);
  EXPECT_EQ(wrong.TimesAsked, 6);
  EXPECT_EQ(wrong.TimesCorrect, std::nullopt);
  EXPECT_EQ(wrong.PassFail, "F"_L1);
}

TEST(GradingTest, EvaluationModeLeavesTimesAsked) {
  const StatusChange correct = GradeRow(CorrectAnswer(1));
  EXPECT_EQ(correct.StatusField, "EvalMode"_L1);
  EXPECT_EQ(correct.TimesAsked, std::nullopt);
  EXPECT_EQ(correct.TimesCorrect, 4);
  EXPECT_EQ(GradeRow(WrongAnswer(1)).TimesAsked, std::nullopt);
}

TEST(GradingTest, AFailureInTheBoxStaysInEvaluationModeOnly) {
  AnswerToGrade answer = CorrectAnswer(1);
  answer.PassFailBox = u"F"_s;
  EXPECT_EQ(GradeRow(answer).PassFail, "F"_L1);
  answer.PassFailBox = u"P"_s;
  EXPECT_EQ(GradeRow(answer).PassFail, "P"_L1);
  answer.Mode = 0;
  answer.PassFailBox = u"F"_s;
  EXPECT_EQ(GradeRow(answer).PassFail, "P"_L1);
}

TEST(GradingTest, TutorialModeCountsOnlyUnansweredQuestionsAsAnswered) {
  AnswerToGrade missedBefore = CorrectAnswer(0);
  missedBefore.WasUnanswered = false;
  EXPECT_EQ(CountAnswer({}, missedBefore).Answered, 0);
  EXPECT_EQ(CountAnswer({}, missedBefore).AnsweredCorrectly, 1);
  EXPECT_EQ(CountAnswer({}, CorrectAnswer(0)).Answered, 1);
  missedBefore.Mode = 1;
  EXPECT_EQ(CountAnswer({}, missedBefore).Answered, 1);
}

TEST(GradingTest, WrongAnswersGoToTheSecondCounterOnceItIsNotZero) {
  SessionCounters counters;
  counters = CountAnswer(counters, WrongAnswer(0));
  EXPECT_EQ(counters.WrongFirst, 1);
  EXPECT_EQ(counters.WrongSecond, 0);
  counters.WrongSecond = 1;
  EXPECT_EQ(CountAnswer(counters, WrongAnswer(0)).WrongSecond, 2);
  EXPECT_EQ(CountAnswer(counters, WrongAnswer(1)).WrongFirst, 2);
  EXPECT_EQ(CountAnswer(counters, WrongAnswer(1)).WrongSecond, 1);
}

TEST(GradingTest, EveryAnswerCountsAsGiven) {
  const SessionCounters counters = CountAnswer({}, WrongAnswer(1));
  EXPECT_EQ(counters.AnswersGiven, 1);
  EXPECT_TRUE(counters.AnswerWasGiven);
}

TEST(GradingTest, FullCountersOverflow) {
  AnswerToGrade answer = CorrectAnswer(0);
  answer.TimesCorrect = 32767;
  EXPECT_RUNTIME_ERROR(static_cast<void>(GradeRow(answer)), ErrorNumber::Overflow);
  SessionCounters counters;
  counters.AnswersGiven = 32767;
  EXPECT_RUNTIME_ERROR(static_cast<void>(CountAnswer(counters, WrongAnswer(0))),
                       ErrorNumber::Overflow);
  EXPECT_RUNTIME_ERROR(static_cast<void>(CountForSubject({32767, 0}, false)),
                       ErrorNumber::Overflow);
}

TEST(FeedbackTextsTest, NameTheAnswersOfBothKinds) {
  EXPECT_EQ(
      IncorrectFeedback(u"True"_s, 7, AnswerName(1, true)),
      u"     'True' is an incorrect answer for Question #7.  The correct answer is 'False'."_s);
  EXPECT_EQ(CorrectFeedback(AnswerName(3, false), 80),
            u"     Nice Job!  'D' is the correct answer for Question #80!"_s);
  EXPECT_EQ(AnswerName(2, true), u""_s);
  EXPECT_EQ(AnswerName(-1, false), u""_s);
}

TEST(StatusFilterTest, FollowsModeMethodAndType) {
  struct Case {
    std::uint8_t mode, method;
    std::int16_t type;
    QLatin1StringView filter;
  };
  for (const Case& c :
       {Case{0, 0, 0, "TutorialMode = 'U'"_L1}, Case{0, 0, 1, "PassFail = 'F'"_L1},
        Case{0, 0, 2, "TutorialMode <> 'C'"_L1}, Case{1, 0, 0, "EvalMode = 'U'"_L1},
        Case{1, 0, 1, "PassFail = 'F'"_L1}, Case{1, 0, 2, "EvalMode <> 'C'"_L1},
        Case{0, 1, 0, "TutorialMode = 'U'"_L1}, Case{0, 1, 1, "TutorialMode = 'I'"_L1},
        Case{0, 1, 2, "TutorialMode <> 'C'"_L1}, Case{1, 1, 0, "EvalMode = 'U'"_L1},
        Case{1, 1, 1, "EvalMode = 'I'"_L1}, Case{1, 1, 2, "EvalMode <> 'C'"_L1}}) {
    EXPECT_EQ(StatusFilter(c.mode, c.method, c.type), c.filter);
  }
  EXPECT_EQ(StatusFilter(0, 0, 3), std::nullopt);
  EXPECT_EQ(StatusFilter(0, 0, -1), std::nullopt);
}

TEST(TrueFalseTest, EndsAtTwentyAndInTheFourthPartAtForty) {
  EXPECT_TRUE(IsTrueFalseQuestion(0, 20));
  EXPECT_FALSE(IsTrueFalseQuestion(2, 21));
  EXPECT_TRUE(IsTrueFalseQuestion(3, 40));
  EXPECT_FALSE(IsTrueFalseQuestion(3, 41));
}

}  // namespace
}  // namespace tessaly::test
