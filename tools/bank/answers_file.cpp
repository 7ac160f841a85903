#include "tools/bank/answers_file.h"

#include <QLatin1StringView>
#include <QVariant>
#include <algorithm>
#include <vector>

#include "catalogue/exam_catalogue.h"
#include "store/connection.h"
#include "store/question_bank.h"
#include "store/sql_text.h"
#include "tools/bank/bank_table.h"

namespace tessaly::bank {

namespace {

constexpr QLatin1StringView kRowId{"rowid"};

struct KeyedRow {
  qlonglong rowId;
  QString key;
};

using Values = std::vector<QVariant>;

std::vector<KeyedRow> ReadKeys(Connection& connection, const BankTable& table) {
  std::vector<KeyedRow> rows;
  Statement select = connection.Prepare(sql::SelectFields(table.name, {kRowId, table.KeyField()}));
  while (select.Next()) {
    rows.push_back({select.ColumnNumber(0), select.Column(1).toString()});
  }
  return rows;
}

bool HasTable(Connection& connection, const QString& name) {
  Statement exists = connection.Prepare(sql::kTableExists);
  exists.Bind({name});
  return exists.Next();
}

// Gives the rows the order of the keys; those with another key keep theirs behind them.
void OrderRows(Connection& connection, const BankTable& table, const QStringList& keys) {
  const auto rankOf = [&keys](const KeyedRow& row) {
    const qsizetype index = keys.indexOf(row.key);
    return index < 0 ? keys.size() : index;
  };
  const auto isBefore = [&rankOf](const KeyedRow& one, const KeyedRow& other) {
    return rankOf(one) < rankOf(other);
  };
  std::vector<KeyedRow> rows = ReadKeys(connection, table);
  if (std::is_sorted(rows.begin(), rows.end(), isBefore)) {
    return;
  }
  std::stable_sort(rows.begin(), rows.end(), isBefore);
  Statement update = connection.Prepare(sql::UpdateRowId(table.name));
  qlonglong place = 0;
  for (const KeyedRow& row : rows) {
    --place;
    update.Bind({place, row.rowId});
    update.Run();
  }
  connection.Execute(sql::NegateRowIds(table.name));
}

// Makes the table have these rows, each told from others by its first value.
void CompleteTable(Connection& connection, const BankTable& table,
                   const std::vector<Values>& rows) {
  if (!HasTable(connection, table.name)) {
    CreateTable(connection, table);
  }
  QStringList present;
  for (const KeyedRow& row : ReadKeys(connection, table)) {
    present.append(row.key);
  }
  QStringList keys;
  Statement insert = connection.Prepare(sql::InsertRow(table.name, table.FieldNames()));
  for (const Values& row : rows) {
    keys.append(row.front().toString());
    if (!present.contains(keys.last())) {
      insert.Bind(row);
      insert.Run();
    }
  }
  OrderRows(connection, table, keys);
}

std::vector<Values> UnansweredRows(const BankSource& bank, const QString& table) {
  std::vector<Values> rows;
  for (const PartSource& part : bank.parts) {
    if (part.table != table) {
      continue;
    }
    for (const QuestionSource& question : part.questions) {
      const QString unanswered = kUnanswered;
      rows.push_back({question.no, unanswered, unanswered, unanswered, 0, 0});
    }
  }
  return rows;
}

std::vector<Values> UntriedSubjects(const BankSource& bank) {
  std::vector<Values> rows;
  for (const QString& subject : bank.subjects) {
    rows.push_back({subject, 0, 0, 0, 0});
  }
  return rows;
}

}  // namespace

// A failure leaves the transaction open; closing the connection then rolls it back.
void CompleteAnswersFile(Connection& connection, const BankSource& bank) {
  connection.Execute(sql::kBegin);
  for (const QLatin1StringView table : kTables) {
    CompleteTable(connection, StatusTable(table), UnansweredRows(bank, table));
  }
  CompleteTable(connection, SubjectStatsTable(), UntriedSubjects(bank));
  connection.Execute(sql::kCommit);
}

}  // namespace tessaly::bank
