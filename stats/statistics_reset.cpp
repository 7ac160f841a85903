#include "stats/statistics_reset.h"

#include <algorithm>
#include <array>
#include <set>

#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "platform/message_boxes.h"
#include "stats/reset_texts.h"
#include "store/conversions.h"
#include "store/database.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

bool EveryQuestion(int /*questionNo*/) {
  return true;
}

// Sets the busy pointer for as long as it lives.
class BusyPointer {
public:
  explicit BusyPointer(ResetView& view) : view_(view) { view_.SetBusyPointer(true); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { view_.SetBusyPointer(false); }

private:
  ResetView& view_;
};

// Gives the study selection its own mode back, whatever happens.
class KeepMode {
public:
  explicit KeepMode(StudySelection& selection) : selection_(selection), mode_(selection.Mode) {}
  KeepMode(const KeepMode&) = delete;
  KeepMode& operator=(const KeepMode&) = delete;
  ~KeepMode() { selection_.Mode = mode_; }

private:
  StudySelection& selection_;
  std::uint8_t mode_;
};

}  // namespace

StatisticsReset::StatisticsReset(ProgramState& state, SettingsStore& settings, Workspace& workspace,
                                 MessageBoxes& boxes, ResetView& view)
    : state_(state), settings_(settings), workspace_(workspace), boxes_(boxes), view_(view) {}

void StatisticsReset::Run(const ResetChoices& choices) {
  choices_ = choices;
  report_.clear();
  {
    const BusyPointer busy(view_);
    if (RunChoices() == Outcome::EndedByNo) {
      view_.ShowStatistics();
      return;
    }
    view_.UnloadForms();
  }
  boxes_.ShowMessage(report_.isEmpty() ? u"No statistics were selected to be deleted."_s : report_,
                     kStatisticsTitle);
}

void StatisticsReset::ConfirmAllDifficult() {
  if (!Ask(u"Reset ALL statistics regarding missed questions?"_s)) {
    view_.ShowStatistics();
  }
}

StatisticsReset::Outcome StatisticsReset::RunChoices() {
  if (choices_.ResetAll) {
    if (!Ask(u"Are you sure you wish to reset all statistics?\r"
             u"This will reset all statistics and timer settings."_s)) {
      return Outcome::EndedByNo;
    }
    ResetEverything();
    return Outcome::Done;
  }
  for (const auto& step : {std::function([this] { return ResetExams(kTutorialMode); }),
                           std::function([this] { return ResetExams(kEvaluationMode); }),
                           std::function([this] { return ResetMissedQuestions(); }),
                           std::function([this] { return ResetSubjects(kTutorialMode); }),
                           std::function([this] { return ResetSubjects(kEvaluationMode); })}) {
    if (step() == Outcome::EndedByNo) {
      return Outcome::EndedByNo;
    }
  }
  return Outcome::Done;
}

void StatisticsReset::ResetEverything() {
  view_.ShowProgress();
  ClearTimers(kTutorialMode);
  ClearTimers(kEvaluationMode);
  const KeepMode keepMode(state_.Selection);
  for (const std::uint8_t mode : {kTutorialMode, kEvaluationMode}) {
    state_.Selection.Mode = mode;
    ResetAllStatus();
  }
  choices_.AllDifficult = true;
  ResetAllStatus();
  choices_.AllDifficult = false;
  ClearSubjectStats(kTutorialMode);
  ClearSubjectStats(kEvaluationMode);
  report_ = u"All study statistics have been deleted."_s;
}

StatisticsReset::Outcome StatisticsReset::ResetExams(std::uint8_t group) {
  if (ScopeOf(group) == ResetScope::CurrentSection) {
    return ResetCurrentSection(group);
  }
  if (ScopeOf(group) == ResetScope::CurrentExam) {
    return ResetCurrentExam(group);
  }
  return ScopeOf(group) == ResetScope::AllExams ? ResetAllExams(group) : Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetSubjects(std::uint8_t group) {
  if (ScopeOf(group) == ResetScope::AllSubjects) {
    return ResetAllSubjects(group);
  }
  return ScopeOf(group) == ResetScope::CurrentSubject ? ResetCurrentSubject(group) : Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetCurrentSection(std::uint8_t group) {
  const auto year = NamedYear(state_.Selection.Exam);
  const int section = state_.Selection.Section;
  if (year) {
    if (!Ask(SectionQuestion(group, *year))) {
      return Outcome::EndedByNo;
    }
    DeleteTimer(group, NamedTimerKey(*year, section));
    report_ = SectionReport(group, *year, section + 1);
  }
  ResetSectionStatus();
  return Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetCurrentExam(std::uint8_t group) {
  const auto year = NamedYear(state_.Selection.Exam);
  if (year) {
    if (!Ask(ExamQuestion(group, *year))) {
      return Outcome::EndedByNo;
    }
    for (int section = 0; section < kPartCount; ++section) {
      DeleteTimer(group, NamedTimerKey(*year, section));
    }
  }
  ResetExamStatus();
  if (year) {
    report_ = ExamReport(group, *year);
  }
  return Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetAllExams(std::uint8_t group) {
  if (!Ask(AllExamsQuestion(group))) {
    return Outcome::EndedByNo;
  }
  ClearTimers(group);
  ResetAllStatus();
  ClearSubjectStats(group);
  report_ = AllExamsReport(group);
  return Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetMissedQuestions() {
  if (!choices_.AllDifficult) {
    return Outcome::Done;
  }
  if (!Ask(u"Reset statistics for ALL QUESTIONS PREVIOUSLY MISSED?"_s)) {
    return Outcome::EndedByNo;
  }
  ResetAllStatus();
  report_ = u"Statistics for all questions previously missed have been deleted"_s;
  return Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetAllSubjects(std::uint8_t group) {
  if (!Ask(AllSubjectsQuestion(group))) {
    return Outcome::EndedByNo;
  }
  ResetAllStatus();
  ClearSubjectStats(group);
  report_ = AllSubjectsReport(group);
  return Outcome::Done;
}

StatisticsReset::Outcome StatisticsReset::ResetCurrentSubject(std::uint8_t group) {
  const QString subject = state_.Selection.Subject;
  if (!Ask(SubjectQuestion(subject))) {
    return Outcome::EndedByNo;
  }
  DeleteSubjectKeys(group);
  ResetSubjectStatus();
  report_ = SubjectReport(group, subject);
  return Outcome::Done;
}

bool StatisticsReset::Ask(const QString& question) {
  return boxes_.AskYesNo(question, kStatisticsTitle);
}

void StatisticsReset::ResetSectionStatus() {
  const StudySelection& selection = state_.Selection;
  const auto table = TableOf(selection.Exam, selection.Section);
  ResetTable(OpenAnswers(), table ? QString(*table) : state_.CurrentTableName, StatusField(),
             EveryQuestion);
}

void StatisticsReset::ResetExamStatus() {
  const Database answers = OpenAnswers();
  for (int part = 1; part <= kPartCount; ++part) {
    ResetTable(answers, state_.Selection.Year + u"Part%1"_s.arg(part), StatusField(),
               EveryQuestion);
  }
}

void StatisticsReset::ResetAllStatus() {
  const Database answers = OpenAnswers();
  const QString field = choices_.AllDifficult ? QString(status_field::kPassFail) : StatusField();
  for (const QLatin1StringView table : kTables) {
    ResetTable(answers, table, field, EveryQuestion);
  }
}

void StatisticsReset::ResetSubjectStatus() {
  const Database answers = OpenAnswers();
  const Database questions =
      workspace_.OpenDatabase(state_.Paths.QuestionsDbPath, state_.Paths.DbConnect);
  for (const QLatin1StringView table : kTables) {
    std::set<int> numbers;
    questions.ReadRows(table, {question_field::kQuestionNo, question_field::kSubject},
                       [&](const std::vector<QVariant>& row) {
                         if (row[1].toString() == state_.Selection.Subject) {
                           numbers.insert(ToInteger(row[0], question_field::kQuestionNo));
                         }
                       });
    if (!numbers.empty()) {
      ResetTable(answers, table, StatusField(),
                 [&numbers](int questionNo) { return numbers.contains(questionNo); });
    }
  }
}

void StatisticsReset::ClearSubjectStats(std::uint8_t group) {
  constexpr qsizetype kMostRows = kSubjectCount + 1;
  const Database answers = OpenAnswers();
  const SubjectColumns columns = ColumnsOfMode(group);
  Transaction transaction(answers);
  Recordset rows = answers.OpenTable(kSubjectStatsTable);
  for (qsizetype i = 0; i < kMostRows && !rows.EndOfFile(); ++i, rows.MoveNext()) {
    WriteSubjectTotals(rows, columns, 0, 0);
  }
  transaction.Commit();
  std::fill_n(state_.Subjects.SubjectAsked.begin(), kSubjectCount, std::int16_t{0});
  std::fill_n(state_.Subjects.SubjectCorrect.begin(), kSubjectCount, std::int16_t{0});
}

void StatisticsReset::ClearTimers(std::uint8_t group) {
  for (const QString& key : AllTimerKeys(group)) {
    DeleteTimer(group, key);
  }
}

void StatisticsReset::DeleteTimer(std::uint8_t group, const QString& key) {
  const QString section = TimerSection(group);
  if (!settings_.Read(section, key, {}).isEmpty()) {
    settings_.Delete(section, key);
  }
}

void StatisticsReset::DeleteSubjectKeys(std::uint8_t group) {
  const QString section = group == kTutorialMode ? u"SubjectStatsT"_s : u"SubjectStatsE"_s;
  for (const QString& key :
       {state_.Selection.Subject + u"Asked"_s, state_.Selection.Subject + u"Correct"_s}) {
    if (!settings_.Read(section, key, {}).isEmpty()) {
      settings_.Delete(section, key);
    }
  }
}

Database StatisticsReset::OpenAnswers() {
  return workspace_.OpenDatabase(state_.Paths.AnswersDbPath, state_.Paths.DbConnect);
}

QString StatisticsReset::StatusField() const {
  return state_.Selection.Mode == kTutorialMode ? status_field::kTutorialMode
                                                : status_field::kEvalMode;
}

void StatisticsReset::ResetTable(const Database& answers, const QString& table,
                                 const QString& field,
                                 const std::function<bool(int questionNo)>& concerns) {
  view_.ShowProgress();
  Recordset rows = answers.OpenRecordset(SelectAllFrom(table));
  Transaction transaction(answers);
  for (; !rows.EndOfFile(); rows.MoveNext()) {
    if (rows.Value(field) != QVariant(QString(kUnanswered)) &&
        concerns(rows.Integer(status_field::kQuestionNo))) {
      rows.Edit();
      rows.SetValue(field, QString(kUnanswered));
      rows.Update();
    }
  }
  transaction.Commit();
}

const std::optional<ResetScope>& StatisticsReset::ScopeOf(std::uint8_t group) const {
  return group == kTutorialMode ? choices_.Tutorial : choices_.Evaluation;
}

}  // namespace tessaly
