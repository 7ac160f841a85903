#include "tools/bank/bank_table.h"

#include "store/connection.h"
#include "store/question_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

constexpr auto kText = "TEXT"_L1;
constexpr auto kNumber = "INTEGER"_L1;

}  // namespace

QStringList BankTable::FieldNames() const {
  QStringList names;
  for (const sql::FieldDefinition& field : fields) {
    names.append(field.name);
  }
  return names;
}

BankTable QuestionTable(const QString& name) {
  return {name,
          {{question_field::kQuestionNo, kText},
           {question_field::kQuestion, kText},
           {question_field::kAnswerText, kText},
           {question_field::kAnswerNumber, kNumber},
           {question_field::kSubject, kText},
           {question_field::kHint, kText},
           {question_field::kLink, kText}},
          true};
}

BankTable VersionTable() {
  return {kVersionTable, {{kTableVersionField, kText}}, false};
}

BankTable StatusTable(const QString& name) {
  return {name,
          {{status_field::kQuestionNo, kNumber},
           {status_field::kTutorialMode, kText},
           {status_field::kEvalMode, kText},
           {status_field::kPassFail, kText},
           {status_field::kTimesAsked, kNumber},
           {status_field::kTimesCorrect, kNumber}},
          true};
}

BankTable SubjectStatsTable() {
  return {kSubjectStatsTable,
          {{subject_field::kSubject, kText},
           {subject_field::kTMAsked, kNumber},
           {subject_field::kTMCorrect, kNumber},
           {subject_field::kEMAsked, kNumber},
           {subject_field::kEMCorrect, kNumber}},
          false};
}

void CreateTable(Connection& connection, const BankTable& table) {
  connection.Execute(sql::CreateTable(table.name, table.fields));
  if (table.isIndexed) {
    connection.Execute(sql::CreateIndex(table.name, table.KeyField()));
  }
}

}  // namespace tessaly::bank
