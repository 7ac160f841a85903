#include "tools/bank/questions_file.h"

#include "catalogue/exam_catalogue.h"
#include "store/connection.h"
#include "store/question_bank.h"
#include "store/sql_text.h"
#include "tools/bank/bank_table.h"
#include "tools/bank/question_text.h"

namespace tessaly::bank {

namespace {

void InsertPart(Connection& connection, const PartSource& part) {
  const BankTable table = QuestionTable(part.table);
  Statement insert = connection.Prepare(sql::InsertRow(table.name, table.FieldNames()));
  for (const QuestionRow& row : CompilePart(part)) {
    insert.Bind({row.no, row.question, row.explanation, row.answerNumber, row.subject, row.hint,
                 row.link ? QVariant(*row.link) : QVariant()});
    insert.Run();
  }
}

void InsertVersion(Connection& connection, const QString& version) {
  const BankTable table = VersionTable();
  Statement insert = connection.Prepare(sql::InsertRow(table.name, table.FieldNames()));
  insert.Bind({version});
  insert.Run();
}

}  // namespace

std::vector<QuestionRow> CompilePart(const PartSource& part) {
  std::vector<QuestionRow> rows;
  for (const QuestionSource& question : part.questions) {
    const auto answer = AnswerNumberOf(question.answer, IsTrueFalse(part.table, question.no));
    rows.push_back({QString::number(question.no), JoinedQuestion(SplitQuestion(question.question)),
                    JoinedParagraphs(question.explanation), answer.value(), question.subject,
                    question.hint.simplified(), question.link});
  }
  return rows;
}

void WriteQuestionsFile(const QString& path, const BankSource& bank) {
  Connection connection(path, kPassword, Connection::Access::CreateNew);
  connection.Execute(sql::kBegin);
  for (const QLatin1StringView table : kTables) {
    CreateTable(connection, QuestionTable(table));
  }
  CreateTable(connection, VersionTable());
  InsertVersion(connection, bank.version);
  for (const PartSource& part : bank.parts) {
    InsertPart(connection, part);
  }
  connection.Execute(sql::kCommit);
}

}  // namespace tessaly::bank
