#include "session/answer_grading.h"

#include <cstddef>

#include "app/main_window_view.h"
#include "app/program_state.h"
#include "session/feedback_texts.h"
#include "session/grading.h"
#include "session/session_data.h"
#include "store/conversions.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

AnswerGrading::AnswerGrading(ProgramState& state, SessionData& session, MainWindowView& view)
    : state_(state), session_(session), view_(view) {}

void AnswerGrading::GradeAnswer(std::int16_t chosen) {
  const AnswerToGrade answer = ReadAnswer(chosen);
  const std::int16_t questionNo = session_.SessionSet->Integer(status_field::kQuestionNo);
  const SessionCounters counters = CountAnswer(session_.Counters, answer);
  const RunningTotals totals = CountForSubject(session_.Subject, IsCorrect(answer));
  const StatusChange change = GradeRow(answer);
  WriteAnswer(change, totals.Asked, totals.Correct);

  SubjectStatistics& subjects = state_.Subjects;
  const auto subject = static_cast<std::size_t>(subjects.SubjectIndex);
  session_.Counters = counters;
  session_.Subject = totals;
  subjects.SubjectAsked[subject] = totals.Asked;
  subjects.SubjectCorrect[subject] = totals.Correct;
  state_.Answered = true;
  chosenName_ = AnswerName(chosen, state_.TrueFalse);
  answeredIncorrectly_ = !IsCorrect(answer);

  view_.HideAnswerButtons();
  view_.FitPanes();
  view_.SetBoxText(Box::txtPassFail, change.PassFail);
  if (answer.Mode == kTutorialMode) {
    ShowTutorialVerdict(answer, questionNo);
  } else {
    view_.SetPanelText(Panel::Selection, EvaluationResult(questionNo, IsCorrect(answer)));
  }
}

AnswerToGrade AnswerGrading::ReadAnswer(std::int16_t chosen) const {
  Recordset& row = *session_.SessionSet;
  if (row.Text(status_field::kQuestionNo) != view_.BoxText(Box::txtQNo)) {
    throw RuntimeError(ErrorNumber::NoCurrentRecord, u"question "_s + view_.BoxText(Box::txtQNo));
  }
  if (state_.Subjects.SubjectIndex < 0 || state_.Subjects.SubjectIndex > kUnknownSubject) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                       u"subject %1"_s.arg(state_.Subjects.SubjectIndex));
  }
  AnswerToGrade answer;
  answer.Mode = state_.Selection.Mode;
  answer.Chosen = chosen;
  answer.AnswerNumber =
      ToInteger(view_.BoxText(Box::txtAnswerNumber), question_field::kAnswerNumber);
  answer.WasUnanswered = row.Text(status_field::kTutorialMode) == kUnanswered;
  answer.TimesAsked = row.Integer(status_field::kTimesAsked);
  answer.TimesCorrect = row.Integer(status_field::kTimesCorrect);
  answer.PassFailBox = view_.BoxText(Box::txtPassFail);
  return answer;
}

void AnswerGrading::WriteAnswer(const StatusChange& change, std::int16_t asked,
                                std::int16_t correct) {
  Transaction transaction(*session_.AnswersDb);
  Recordset& row = *session_.SessionSet;
  row.Edit();
  row.SetValue(change.StatusField, QString(change.Status));
  if (change.TimesAsked) {
    row.SetValue(status_field::kTimesAsked, *change.TimesAsked);
  }
  if (change.TimesCorrect) {
    row.SetValue(status_field::kTimesCorrect, *change.TimesCorrect);
  }
  row.SetValue(status_field::kPassFail, QString(change.PassFail));
  row.Update();
  const std::int16_t subject = state_.Subjects.SubjectIndex;
  if (subject != kUnknownSubject) {
    session_.SubjectStats->SetAbsolutePosition(subject);
    WriteSubjectTotals(*session_.SubjectStats, ColumnsOfMode(state_.Selection.Mode), asked,
                       correct);
  }
  transaction.Commit();
}

void AnswerGrading::ShowTutorialVerdict(const AnswerToGrade& answer, std::int16_t questionNo) {
  if (IsCorrect(answer)) {
    view_.SetFeedbackColour(BoxColour::Green);
    view_.SetBoxText(Box::txtRightWrong, CorrectFeedback(chosenName_, questionNo));
  } else {
    view_.EnableToolButton(ToolButton::Mode, false);
    view_.SetFeedbackColour(BoxColour::Red);
    view_.SetBoxText(Box::txtRightWrong,
                     IncorrectFeedback(chosenName_, questionNo,
                                       AnswerName(answer.AnswerNumber, state_.TrueFalse)));
    view_.EnableToolButton(ToolButton::Hint, true);
    view_.EnableCommand(Command::mnuFileResearch, true);
  }
  view_.ShowBox(Box::txtRightWrong, true);
  view_.ShowBox(Box::txtAnswer, true);
  view_.EnableToolButton(ToolButton::Next, true);
  view_.EnableCommand(Command::mnuFileNext, true);
}

}  // namespace tessaly
