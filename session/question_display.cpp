#include "session/question_display.h"

#include <cstddef>

#include "app/main_window_view.h"
#include "app/program_state.h"
#include "reference/research_hint.h"
#include "session/feedback_texts.h"
#include "session/question_selection.h"
#include "session/session_data.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kPartFourSection = 3;
constexpr int kLastTrueFalse = 20;
constexpr int kLastTrueFalseOfPartFour = 40;

// A status row whose question is missing from the questions file counts as one with Null fields.
QString TextOr(Recordset& row, const QString& field, const QString& fallback) {
  if (row.NoMatch()) {
    return fallback;
  }
  const QVariant value = row.Value(field);
  return value.isNull() ? fallback : value.toString();
}

}  // namespace

bool IsTrueFalseQuestion(int section, int questionNo) {
  return questionNo <= (section == kPartFourSection ? kLastTrueFalseOfPartFour : kLastTrueFalse);
}

QuestionDisplay::QuestionDisplay(ProgramState& state, SessionData& session,
                                 QuestionSelection& selection, MainWindowView& view)
    : state_(state), session_(session), selection_(selection), view_(view) {}

bool QuestionDisplay::ShowQuestion() {
  if (session_.SessionSet->EndOfFile()) {
    selection_.BuildQuestionSet();
    if (session_.EmptySection) {
      return false;
    }
  }
  const std::int16_t questionNo = session_.SessionSet->Integer(status_field::kQuestionNo);
  session_.QuestionTextSet->FindFirst(QuestionTextCriterion(questionNo));
  FillBoxes(questionNo);
  state_.QuestionSubject = TextOr(*session_.QuestionTextSet, question_field::kSubject, {});
  state_.Selection.Subject = state_.QuestionSubject;
  FindSubjectNumber();
  return true;
}

QuestionDisplay::SubjectQuestion QuestionDisplay::LoadSubjectData() {
  if (!selection_.WalkToQuestionText()) {
    return SubjectQuestion::WalkOver;
  }
  const std::int16_t questionNo = session_.QuestionTextSet->Integer(question_field::kQuestionNo);
  session_.SessionSet->FindFirst(QuestionStatusCriterion(questionNo));
  if (session_.SessionSet->EndOfFile()) {
    session_.Walk.ForceEnd();
    return SubjectQuestion::WalkOver;
  }
  if (session_.SessionSet->Integer(status_field::kQuestionNo) != questionNo) {
    return SubjectQuestion::NotInSessionSet;
  }
  FillBoxes(questionNo);
  session_.Walk.CountQuestionShown();
  return SubjectQuestion::Shown;
}

void QuestionDisplay::ShowButtons() {
  if (session_.SessionSet->EndOfFile()) {
    return;
  }
  const std::int16_t questionNo = session_.SessionSet->Integer(status_field::kQuestionNo);
  state_.TrueFalse = IsTrueFalseQuestion(state_.Selection.Section, questionNo);
  view_.ShowAnswerButtons(state_.TrueFalse);
}

void QuestionDisplay::HideButtons() {
  view_.HideAnswerButtons();
}

void QuestionDisplay::FindSubjectNumber() {
  SubjectStatistics& subjects = state_.Subjects;
  subjects.SubjectIndex = FindSubject(subjects, state_.Selection.Subject);
  if (subjects.SubjectIndex != kUnknownSubject) {
    const auto index = static_cast<std::size_t>(subjects.SubjectIndex);
    session_.Subject = {subjects.SubjectAsked[index], subjects.SubjectCorrect[index]};
  }
}

void QuestionDisplay::FillBoxes(std::int16_t questionNo) {
  Recordset& text = *session_.QuestionTextSet;
  const bool tutorial = state_.Selection.Mode == kTutorialMode;
  view_.SetBoxText(Box::txtQNo, QString::number(questionNo));
  view_.SetBoxText(Box::txtRightWrong, QuestionHeading(questionNo));
  view_.SetFeedbackColour(BoxColour::LightYellow);
  view_.SetBoxText(Box::txtQuestion,
                   TextOr(text, question_field::kQuestion,
                          u"This question is not available in the current database release."_s));
  view_.SetQuestionFontSize(state_.ProgramOptions.QuestionFontSize);
  view_.SetBoxText(Box::txtAnswer, TextOr(text, question_field::kAnswerText,
                                          u"Explanation of the answer is not available in the "
                                          u"current database release."_s));
  ShowButtons();
  view_.SetBoxText(Box::txtAnswerNumber, TextOr(text, question_field::kAnswerNumber, {}));
  view_.SetBoxText(
      Box::txtAnswered,
      session_.SessionSet->Text(tutorial ? status_field::kTutorialMode : status_field::kEvalMode));
  LoadResearchHint(
      {TextOr(text, question_field::kHint, {}), TextOr(text, question_field::kLink, {})}, state_,
      view_);
}

}  // namespace tessaly
