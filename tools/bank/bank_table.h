#ifndef TESSALY_TOOLS_BANK_BANK_TABLE_H_
#define TESSALY_TOOLS_BANK_BANK_TABLE_H_

#include <QList>
#include <QString>
#include <QStringList>

#include "store/sql_text.h"

namespace tessaly {
class Connection;
}

namespace tessaly::bank {

// A table of the bank's files: its fields, the first of which says what a row stands for.
struct BankTable {
  QString name;
  QList<sql::FieldDefinition> fields;
  bool isIndexed = false;  // by its first field

  [[nodiscard]] const QString& KeyField() const { return fields.first().name; }
  [[nodiscard]] QStringList FieldNames() const;
};

[[nodiscard]] BankTable QuestionTable(const QString& name);
[[nodiscard]] BankTable VersionTable();
[[nodiscard]] BankTable StatusTable(const QString& name);
[[nodiscard]] BankTable SubjectStatsTable();

void CreateTable(Connection& connection, const BankTable& table);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_BANK_TABLE_H_
