#include "catalogue/study_selector.h"

#include "app/main_window_view.h"
#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

StudySelector::StudySelector(ProgramState& state, SettingsStore& settings, Workspace& workspace,
                             MainWindowView& view)
    : state_(state), settings_(settings), workspace_(workspace), view_(view) {}

void StudySelector::SetCurrentTable() {
  StudySelection& selection = state_.Selection;
  state_.TablePosition = 1;
  if (selection.Method == kBySubject) {
    NextTable();
    // Unlike the refreshed text, this one ends in " - " while no subject is chosen.
    view_.SetPanelText(Panel::Selection, u"Study by Subject - "_s + selection.Subject);
    return;
  }
  if (const auto table = TableOf(selection.Exam, selection.Section)) {
    state_.CurrentTableName = *table;
  }
  view_.SetPanelText(Panel::Selection, SelectionText(selection, state_.QuestionSubject));
}

void StudySelector::NextTable() {
  if (const auto table = TableAt(state_.TablePosition)) {
    state_.CurrentTableName = *table;
    ++state_.TablePosition;
  }
}

void StudySelector::SetYearFromExamString() {
  if (const auto code = CodeOfCaption(state_.Selection.ExamString)) {
    state_.Selection.Year = *code;
  }
}

void StudySelector::ResetStudySelection() {
  StudySelection& selection = state_.Selection;
  selection = StudySelection{};
  selection.ExamString = kExams.front().caption;
  // The only place where a part's caption has this form; the wizard's list says "Part I".
  selection.SectionString = u"Part I (Individual)"_s;
  SetYearFromExamString();
  WriteSetting("Mode"_L1, QString::number(selection.Mode));
  WriteSetting("Method"_L1, QString::number(selection.Method));
  WriteSetting("Subject"_L1, selection.Subject);
  WriteSetting("QuestionType"_L1, QString::number(selection.QuestionType));
  WriteExamAndSection();
  WriteSetting("Subject"_L1, selection.Subject);
  WriteCaptions();
}

void StudySelector::SaveStudySelection() {
  const StudySelection& selection = state_.Selection;
  WriteSetting("Mode"_L1, QString::number(selection.Mode));
  WriteSetting("Method"_L1, QString::number(selection.Method));
  if (selection.Method != kByExamSection) {
    WriteSetting("Subject"_L1, selection.Subject);
  } else {
    WriteExamAndSection();
    WriteCaptions();
    state_.Time.Stored = settings_.Read(TimerSection(selection.Mode), TimerKey(selection), {});
  }
  WriteSetting("QuestionType"_L1, QString::number(selection.QuestionType));
  LoadSubjectTotals();
}

void StudySelector::LoadSubjectTotals() {
  LoadSubjectStats(workspace_, state_.Paths, state_.Selection.Mode, state_.Subjects);
}

void StudySelector::ShowModeCaption() {
  view_.SetPanelText(Panel::Mode, ModeCaption(state_.Selection.Mode));
}

void StudySelector::RefreshStatus() {
  const QString timer = TimerText(state_.Selection.Method, state_.ProgramOptions.TimerStatus);
  if (timer.isEmpty()) {
    return;
  }
  RefreshSelectionPanel();
  view_.SetPanelText(Panel::Timer, timer);
}

void StudySelector::RefreshSelectionPanel() {
  view_.SetPanelText(Panel::Selection, SelectionText(state_.Selection, state_.QuestionSubject));
  view_.SetPanelToolTip(Panel::Selection, SelectionToolTip(state_.Selection));
}

void StudySelector::WriteSetting(QLatin1StringView key, const QString& value) {
  settings_.Write(settings_section::kStudyMode, key, value);
}

void StudySelector::WriteExamAndSection() {
  const StudySelection& selection = state_.Selection;
  WriteSetting("Exam"_L1, QString::number(selection.Exam));
  WriteSetting("Section"_L1, QString::number(selection.Section));
}

void StudySelector::WriteCaptions() {
  const StudySelection& selection = state_.Selection;
  WriteSetting("ExamString"_L1, selection.ExamString);
  WriteSetting("Year"_L1, selection.Year);
  WriteSetting("SectionString"_L1, selection.SectionString);
}

}  // namespace tessaly
