#include "tools/bank/export.h"

#include <QDir>
#include <cstddef>
#include <utility>
#include <vector>

#include "catalogue/exam_catalogue.h"
#include "platform/file_operations.h"
#include "store/question_bank.h"
#include "store/runtime_error.h"
#include "tools/bank/checks.h"
#include "tools/bank/source_writer.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

struct SourceText {
  QString name;
  QByteArray content;
};

std::vector<QuestionRow> ReadRows(const Database& database, const QString& table) {
  std::vector<QuestionRow> rows;
  for (Recordset set = database.OpenTable(table); !set.EndOfFile(); set.MoveNext()) {
    const QVariant link = set.Value(question_field::kLink);
    rows.push_back({set.Text(question_field::kQuestionNo), set.Text(question_field::kQuestion),
                    set.Text(question_field::kAnswerText),
                    set.Integer(question_field::kAnswerNumber), set.Text(question_field::kSubject),
                    set.Text(question_field::kHint),
                    link.isNull() ? std::nullopt : std::optional(link.toString())});
  }
  return rows;
}

// Reads a part's new source as a compilation would, and compares.
void ProveSource(const SourceText& source, const QString& table,
                 const std::vector<QuestionRow>& rows, Findings& findings) {
  Findings unreadable;
  const PartSource part = ReadPartSource(table, source.content, unreadable);
  BankSource bank{u"-"_s, {}, {part}};
  for (const QuestionRow& row : rows) {
    bank.subjects.append(row.subject);
  }
  bank.subjects.removeDuplicates();
  bank.subjects.sort(Qt::CaseInsensitive);
  CheckEntries(bank, unreadable);
  if (!unreadable.empty() || part.questions.size() != rows.size()) {
    findings.insert(findings.end(), unreadable.begin(), unreadable.end());
    return;
  }
  const std::vector<QuestionRow> compiled = CompilePart(part);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (compiled[i] != rows[i]) {
      findings.push_back({{source.name, 0, rows[i].no.toInt()},
                          u"the texts of the table are not as compiled, and would change"_s});
    }
  }
}

std::vector<SourceText> SourcesOf(const QString& questionsFile, Findings& findings) {
  Workspace workspace;
  BankPaths paths;
  BuildDatabasePaths(paths);
  paths.QuestionsDbPath = questionsFile;
  const Database database = workspace.OpenDatabase(questionsFile, paths.DbConnect);
  std::vector<SourceText> sources{
      {kVersionSource, VersionSourceText(ReadTableVersion(workspace, paths))}};
  for (const QLatin1StringView table : kTables) {
    const std::vector<QuestionRow> rows = ReadRows(database, table);
    if (rows.empty()) {
      continue;
    }
    SourceText source{SourceName(table), PartSourceText(table, rows)};
    ProveSource(source, table, rows, findings);
    sources.push_back(std::move(source));
  }
  return sources;
}

}  // namespace

void ExportBank(const QString& questionsFile, const QString& folder, FileOperations& files,
                Findings& findings) {
  const std::vector<SourceText> sources = SourcesOf(questionsFile, findings);
  if (!findings.empty()) {
    return;
  }
  if (!QDir().mkpath(folder)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, folder);
  }
  for (const SourceText& source : sources) {
    files.Write(QDir(folder).filePath(source.name), source.content);
  }
}

}  // namespace tessaly::bank
