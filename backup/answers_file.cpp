#include "backup/answers_file.h"

#include <QFile>
#include <array>

#include "catalogue/exam_catalogue.h"
#include "platform/file_operations.h"
#include "stats/subject_statistics.h"
#include "store/database.h"
#include "store/question_bank.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr std::array kStatusFields{
    status_field::kQuestionNo, status_field::kTutorialMode, status_field::kEvalMode,
    status_field::kPassFail,   status_field::kTimesAsked,   status_field::kTimesCorrect,
};

void RequireStatusTable(const Database& file, const QString& table) {
  Recordset rows = file.OpenTable(table);
  if (rows.EndOfFile()) {
    return;
  }
  for (const QLatin1StringView field : kStatusFields) {
    static_cast<void>(rows.Value(field));
  }
}

}  // namespace

void RequireAnswersFile(Workspace& workspace, const QString& path, const QString& connect) {
  const Database file = workspace.OpenDatabase(path, connect);
  if (!file.IsIntact()) {
    throw RuntimeError(ErrorNumber::UnrecognizedDatabaseFormat, path);
  }
  for (const QLatin1StringView table : kTables) {
    RequireStatusTable(file, table);
  }
  const BankPaths paths{
      .ProgramFolder = {}, .QuestionsDbPath = {}, .AnswersDbPath = path, .DbConnect = connect};
  for (const std::uint8_t mode : {kTutorialMode, kEvaluationMode}) {
    SubjectStatistics subjects;
    LoadSubjectStats(workspace, paths, mode, subjects);
  }
}

void PrepareToReplace(Workspace& workspace, FileOperations& files, const BankPaths& paths) {
  try {
    static_cast<void>(workspace.OpenDatabase(paths.AnswersDbPath, paths.DbConnect));
  } catch (const RuntimeError& error) {
    if (error.Number() == ErrorNumber::PermissionDenied) {
      throw;
    }
    // Missing or damaged: that may be why it is to be replaced.
  }
  const QString journal = paths.AnswersDbPath + "-journal"_L1;
  if (QFile::exists(journal)) {
    files.Remove(journal);
  }
}

}  // namespace tessaly
