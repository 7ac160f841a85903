#include "session/question_selection.h"

#include <array>
#include <cstddef>

#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "session/session_data.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

using FiltersByType = std::array<QLatin1StringView, 3>;

// By method, then mode, then question type.
constexpr std::array<std::array<FiltersByType, 2>, 2> kStatusFilters{{
    {{
        {"TutorialMode = 'U'"_L1, "PassFail = 'F'"_L1, "TutorialMode <> 'C'"_L1},
        {"EvalMode = 'U'"_L1, "PassFail = 'F'"_L1, "EvalMode <> 'C'"_L1},
    }},
    {{
        {"TutorialMode = 'U'"_L1, "TutorialMode = 'I'"_L1, "TutorialMode <> 'C'"_L1},
        {"EvalMode = 'U'"_L1, "EvalMode = 'I'"_L1, "EvalMode <> 'C'"_L1},
    }},
}};

}  // namespace

std::optional<QLatin1StringView> StatusFilter(std::uint8_t mode, std::uint8_t method,
                                              std::int16_t questionType) {
  if (questionType < kUnansweredQuestions || questionType > kUnansweredAndMissedQuestions) {
    return std::nullopt;
  }
  const std::size_t methodIndex = method == kBySubject ? 1 : 0;
  const std::size_t modeIndex = mode == kTutorialMode ? 0 : 1;
  return kStatusFilters[methodIndex][modeIndex][static_cast<std::size_t>(questionType)];
}

QuestionSelection::QuestionSelection(ProgramState& state, Workspace& workspace,
                                     SessionData& session)
    : state_(state), workspace_(workspace), session_(session) {}

void QuestionSelection::OpenTables() {
  const BankPaths& paths = state_.Paths;
  session_.AnswersDb = workspace_.OpenDatabase(paths.AnswersDbPath, paths.DbConnect);
  session_.SessionSet = session_.AnswersDb->OpenTable(state_.CurrentTableName);
  OpenStatusTable();
  session_.QuestionsDb = workspace_.OpenDatabase(paths.QuestionsDbPath, paths.DbConnect);
  session_.QuestionTextSet = session_.QuestionsDb->OpenTable(state_.CurrentTableName);
  session_.SubjectStats = session_.AnswersDb->OpenTable(kSubjectStatsTable);
}

qsizetype QuestionSelection::CountQuestionsToAsk() {
  const StudySelection& selection = state_.Selection;
  const auto unanswered = StatusFilter(selection.Mode, kByExamSection, kUnansweredQuestions);
  const auto missed = StatusFilter(selection.Mode, kByExamSection, kMissedQuestions);
  qsizetype count = 0;
  if (selection.QuestionType != kMissedQuestions) {
    count += CountStatusRows(*unanswered);
  }
  if (selection.QuestionType != kUnansweredQuestions) {
    count += CountStatusRows(*missed);
  }
  return count;
}

void QuestionSelection::BuildQuestionSet() {
  const StudySelection& selection = state_.Selection;
  if (selection.Method == kBySubject) {
    Recordset texts = session_.QuestionsDb->OpenRecordset(SelectAllFrom(state_.CurrentTableName));
    texts.SetFilter(SubjectFilter(selection.Subject));
    session_.QuestionTextSet = texts.OpenRecordset();
  }
  if (const auto filter = StatusFilter(selection.Mode, selection.Method, selection.QuestionType)) {
    session_.StatusTable->SetFilter(*filter);
  }
  session_.StatusTable->SetSort(status_field::kQuestionNo);
  session_.SessionSet = session_.StatusTable->OpenRecordset();
  if (selection.Method == kByExamSection) {
    session_.EmptySection = session_.SessionSet->EndOfFile();
  }
}

void QuestionSelection::AdvanceQuestionTable() {
  session_.Walk.CountMove(state_.CurrentTableName);
  if (const auto next = TableAfter(state_.CurrentTableName)) {
    state_.CurrentTableName = *next;
  }
  if (const auto place = PlaceOfTable(state_.CurrentTableName)) {
    state_.Selection.Exam = place->exam;
    state_.Selection.Section = place->section;
  }
  OpenStatusTable();
  session_.QuestionTextSet =
      session_.QuestionsDb->OpenRecordset(SelectAllFrom(state_.CurrentTableName));
}

bool QuestionSelection::WalkToQuestionText() {
  SubjectWalk& walk = session_.Walk;
  const SessionCounters& counters = session_.Counters;
  while (session_.QuestionTextSet->EndOfFile()) {
    if (walk.WentAroundInVain()) {
      walk.ForceEnd();
      return false;
    }
    if (walk.AtCheckpoint()) {
      if (NothingLeftAtCheckpoint(state_.Selection.QuestionType, walk.Skipped, counters.Answered,
                                  counters.AnsweredCorrectly)) {
        return false;
      }
      walk.Skipped = 0;
    }
    AdvanceQuestionTable();
    BuildQuestionSet();
  }
  return true;
}

qsizetype QuestionSelection::CountStatusRows(const QString& filter) {
  session_.StatusTable->SetFilter(filter);
  session_.StatusTable->SetSort({});
  return session_.StatusTable->OpenRecordset().RecordCount();
}

void QuestionSelection::OpenStatusTable() {
  session_.StatusTable = session_.AnswersDb->OpenRecordset(SelectAllFrom(state_.CurrentTableName));
}

}  // namespace tessaly
