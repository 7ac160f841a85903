#include "session/study_session.h"

#include <cstddef>
#include <utility>

#include "app/main_window_view.h"
#include "app/program_settings.h"
#include "app/program_state.h"
#include "catalogue/study_selector.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "session/feedback_texts.h"
#include "session/session_commands.h"
#include "store/compaction.h"
#include "store/conversions.h"
#include "store/runtime_error.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

StudySession::StudySession(ProgramState& state, const Services& services, MainWindowView& view)
    : state_(state),
      services_(services),
      view_(view),
      selection_(state, services.workspace, data_),
      display_(state, data_, selection_, view),
      grading_(state, data_, view),
      timer_(state, services.settings, services.clock, services.boxes, view) {}

void StudySession::BeginSession() {
  if (running_) {
    return;
  }
  try {
    OpenSession();
    if (state_.Selection.Method == kByExamSection) {
      BeginBySection();
    } else {
      BeginBySubject();
    }
  } catch (const RuntimeError&) {
    running_ = false;
    data_ = {};
    EnterIdle();
    throw;
  }
}

void StudySession::OpenSession() {
  data_ = {};
  panelShowsResult_ = false;
  services_.compaction.CompactDatabases();
  // The warning is due once a session; the stored time decides anew whether it came before.
  state_.Time.Exceeded = false;
  services_.programSettings.LoadSettings();
  if (state_.Selection.Method == kBySubject) {
    state_.Selection.Exam = 0;
    state_.Selection.Section = 0;
  }
  services_.selector.SetCurrentTable();
  timer_.LoadSectionTime();
  display_.FindSubjectNumber();
  selection_.OpenTables();
  running_ = true;
}

void StudySession::BeginBySection() {
  bool somethingToAsk = selection_.CountQuestionsToAsk() > 0;
  if (somethingToAsk) {
    selection_.BuildQuestionSet();
    // The rows counted and the rows asked differ where both modes were used: every row may have
    // been answered correctly in this mode and failed in the other.
    somethingToAsk = !data_.EmptySection && display_.ShowQuestion();
  }
  if (!somethingToAsk) {
    services_.boxes.ShowInformation(NothingLeftInSection(state_.Selection.QuestionType),
                                    u"Tessaly Section Information"_s);
    EndSession();
    return;
  }
  ShowSelectionUnlessResult();
  EnterRunning();
}

void StudySession::BeginBySubject() {
  selection_.BuildQuestionSet();
  ShowSubjectQuestion();
  CheckSubjectEnd();
  if (running_) {
    EnterRunning();
  }
}

void StudySession::EnterRunning() {
  EnableRunningCommands(view_);
  state_.Answered = false;
  view_.FitPanes();
  view_.SetFeedbackColour(BoxColour::LightYellow);
  view_.ShowBox(Box::txtRightWrong, true);
  view_.ShowBox(Box::txtQuestion, true);
  view_.ShowBox(Box::txtHintLink, true);
  timer_.Start();
  data_.Counters.AnswersGiven = 0;
  data_.Counters.AnswerWasGiven = false;
  display_.ShowButtons();
}

void StudySession::EnterIdle() {
  timer_.Stop();
  display_.HideButtons();
  for (const Box box : {Box::txtRightWrong, Box::txtAnswer, Box::txtQuestion, Box::txtHintLink}) {
    view_.ShowBox(box, false);
  }
  EnableIdleCommands(view_);
  state_.Answered = false;
}

void StudySession::NextQuestion() {
  if (running_) {
    panelShowsResult_ = false;
    GoToNextQuestion();
  }
}

void StudySession::GoToNextQuestion() {
  if (state_.Selection.Method == kBySubject) {
    NextBySubject();
  } else {
    NextBySection();
  }
  if (running_) {
    AwaitAnswer();
  }
}

void StudySession::NextBySection() {
  if (data_.SessionSet->EndOfFile()) {
    data_.SessionSet->MoveFirst();
    data_.QuestionTextSet->MoveFirst();
  } else {
    data_.SessionSet->MoveNext();
    data_.QuestionTextSet->MoveNext();
  }
  if (data_.SessionSet->EndOfFile()) {
    EnterIdle();
    services_.boxes.ShowInformation(NothingLeftInSection(kUnansweredQuestions), kApplicationTitle);
    EndSession();
    return;
  }
  static_cast<void>(display_.ShowQuestion());
  ShowSelectionUnlessResult();
}

void StudySession::NextBySubject() {
  MoveToNextSubjectQuestion();
  ShowSubjectQuestion();
  CheckSubjectEnd();
}

void StudySession::AwaitAnswer() {
  state_.Answered = false;
  view_.ShowBox(Box::txtAnswer, false);
  view_.FitPanes();
  display_.ShowButtons();
  view_.EnableCommand(Command::mnuFileNext, false);
  view_.EnableToolButton(ToolButton::Next, false);
  view_.EnableCommand(Command::mnuFileResearch, true);
  view_.EnableToolButton(ToolButton::Hint, true);
}

void StudySession::Skip() {
  if (!running_) {
    return;
  }
  panelShowsResult_ = false;
  if (state_.Selection.Method == kBySubject) {
    SkipBySubject();
  } else {
    SkipBySection();
  }
  if (running_) {
    display_.ShowButtons();
  }
}

void StudySession::SkipBySection() {
  if (data_.SessionSet->EndOfFile()) {
    selection_.BuildQuestionSet();
    data_.SessionSet->MoveFirst();
    data_.QuestionTextSet->MoveFirst();
  } else {
    data_.SessionSet->MoveNext();
    data_.QuestionTextSet->MoveNext();
  }
  static_cast<void>(display_.ShowQuestion());
  ShowSelectionUnlessResult();
}

void StudySession::SkipBySubject() {
  data_.Walk.Skipped = CheckedAdd(data_.Walk.Skipped, 1);
  if (state_.Selection.Mode != kTutorialMode) {
    view_.SetPanelText(Panel::Selection, SkippedNotice(view_.BoxText(Box::txtQNo)));
    panelShowsResult_ = true;
  }
  data_.QuestionTextSet->MoveNext();
  data_.SessionSet->MoveNext();
  if (data_.QuestionTextSet->EndOfFile()) {
    selection_.BuildQuestionSet();
  }
  ShowSubjectQuestion();
  CheckSubjectEnd();
}

// A question of the subject that this session does not ask is passed over.
void StudySession::ShowSubjectQuestion() {
  while (display_.LoadSubjectData() == QuestionDisplay::SubjectQuestion::NotInSessionSet) {
    MoveToNextSubjectQuestion();
  }
  ShowSelectionUnlessResult();
}

void StudySession::MoveToNextSubjectQuestion() {
  data_.QuestionTextSet->MoveNext();
  data_.SessionSet->MoveNext();
  if (data_.QuestionTextSet->EndOfFile() && !data_.Walk.AtCheckpoint()) {
    selection_.AdvanceQuestionTable();
    selection_.BuildQuestionSet();
  }
}

void StudySession::ShowSelectionUnlessResult() {
  if (!panelShowsResult_) {
    services_.selector.RefreshSelectionPanel();
  }
}

void StudySession::CheckSubjectEnd() {
  if (data_.Walk.HasEnded()) {
    EndSession();
  }
}

void StudySession::GradeAnswer(std::int16_t chosen) {
  if (!running_ || state_.Answered) {
    return;
  }
  grading_.GradeAnswer(chosen);
  if (state_.Selection.Mode != kTutorialMode) {
    panelShowsResult_ = true;
    GoToNextQuestion();
  }
}

void StudySession::EndSession() {
  if (!running_) {
    return;
  }
  running_ = false;
  EnterIdle();
  // The files are let go whatever fails below; every count is on the disk already.
  SessionData ended = std::exchange(data_, {});
  data_.Walk = ended.Walk;
  state_.QuestionSubject.clear();
  services_.selector.RefreshSelectionPanel();
  if (state_.Selection.Method == kByExamSection) {
    timer_.SaveSectionTime();
  }
  view_.SetFeedbackColour(BoxColour::LightYellow);
  WriteSubjectStatistics(ended);
  ended = {};
  ReportEndOfSubject();
}

void StudySession::WriteSubjectStatistics(SessionData& ended) {
  SubjectStatistics& subjects = state_.Subjects;
  const SubjectColumns columns = ColumnsOfMode(state_.Selection.Mode);
  Transaction transaction(*ended.AnswersDb);
  Recordset rows = ended.AnswersDb->OpenTable(kSubjectStatsTable);
  for (subjects.SubjectIndex = 0; subjects.SubjectIndex < kSubjectCount; ++subjects.SubjectIndex) {
    const auto subject = static_cast<std::size_t>(subjects.SubjectIndex);
    WriteSubjectTotals(rows, columns, subjects.SubjectAsked[subject],
                       subjects.SubjectCorrect[subject]);
    rows.MoveNext();
  }
  transaction.Commit();
}

void StudySession::ReportEndOfSubject() {
  if (data_.Walk.AtCheckpoint()) {
    services_.boxes.ShowInformation(
        NothingLeftOfSubject(state_.Selection.QuestionType, state_.Selection.Subject),
        kApplicationTitle);
  }
}

}  // namespace tessaly
