#include "session/grading.h"

#include "catalogue/study_selection.h"
#include "store/conversions.h"
#include "store/question_bank.h"

namespace tessaly {

namespace {

QLatin1StringView PassFailCode(const AnswerToGrade& answer) {
  if (!IsCorrect(answer)) {
    return kFailed;
  }
  const bool failureStays = answer.Mode != kTutorialMode && answer.PassFailBox == kFailed;
  return failureStays ? kFailed : kPassed;
}

void CountWrongAnswer(SessionCounters& counters, bool tutorial) {
  std::int16_t& counter =
      tutorial && counters.WrongSecond != 0 ? counters.WrongSecond : counters.WrongFirst;
  counter = CheckedAdd(counter, 1);
}

}  // namespace

bool IsCorrect(const AnswerToGrade& answer) {
  return answer.Chosen == answer.AnswerNumber;
}

StatusChange GradeRow(const AnswerToGrade& answer) {
  const bool tutorial = answer.Mode == kTutorialMode;
  StatusChange change;
  change.StatusField = tutorial ? status_field::kTutorialMode : status_field::kEvalMode;
  change.Status = IsCorrect(answer) ? kAnsweredCorrectly : kAnsweredIncorrectly;
  if (tutorial) {
    change.TimesAsked = CheckedAdd(answer.TimesAsked, 1);
  }
  if (IsCorrect(answer)) {
    change.TimesCorrect = CheckedAdd(answer.TimesCorrect, 1);
  }
  change.PassFail = PassFailCode(answer);
  return change;
}

SessionCounters CountAnswer(const SessionCounters& counters, const AnswerToGrade& answer) {
  const bool tutorial = answer.Mode == kTutorialMode;
  SessionCounters counted = counters;
  counted.AnswersGiven = CheckedAdd(counted.AnswersGiven, 1);
  counted.AnswerWasGiven = true;
  if (!tutorial || answer.WasUnanswered) {
    counted.Answered = CheckedAdd(counted.Answered, 1);
  }
  if (IsCorrect(answer)) {
    counted.AnsweredCorrectly = CheckedAdd(counted.AnsweredCorrectly, 1);
  } else {
    CountWrongAnswer(counted, tutorial);
  }
  return counted;
}

RunningTotals CountForSubject(const RunningTotals& totals, bool correct) {
  return {CheckedAdd(totals.Asked, 1),
          CheckedAdd(totals.Correct, correct ? std::int16_t{1} : std::int16_t{0})};
}

}  // namespace tessaly
