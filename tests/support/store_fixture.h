#ifndef TESSALY_TESTS_SUPPORT_STORE_FIXTURE_H_
#define TESSALY_TESTS_SUPPORT_STORE_FIXTURE_H_

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/connection.h"
#include "store/database.h"
#include "store/question_bank.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

namespace tessaly::test {

inline const QString kConnect = QStringLiteral(";pwd=") + kPassword;

// Creates a database file with the table "Cards" of `rows` rows numbered from 1: status "U" and
// a long text.
inline void CreateCards(const QString& path, int rows) {
  Connection file(path, kPassword, Connection::Access::CreateNew);
  file.Execute(QStringLiteral("CREATE TABLE Cards (No INTEGER, Status TEXT, Front TEXT)"));
  Statement insert = file.Prepare(QStringLiteral(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
      "INSERT INTO Cards SELECT i, 'U', 'Front ' || i || ' ' || hex(zeroblob(50)) FROM n"));
  insert.Bind({rows});
  insert.Run();
  file.Execute(QStringLiteral("CREATE INDEX CardsNo ON Cards (No)"));
}

// One encrypted file of 100 cards in a temporary folder.
class StoreTest : public ::testing::Test {
protected:
  StoreTest() { CreateCards(path, 100); }

  // On a connection of its own; the file must not be open elsewhere.
  void Run(const QString& sql, const std::vector<QVariant>& values = {}) {
    Connection connection(path, kPassword, Connection::Access::OpenExisting);
    Statement statement = connection.Prepare(sql);
    statement.Bind(values);
    statement.Run();
  }
  [[nodiscard]] QString Stored(const QString& sql) {
    Connection connection(path, kPassword, Connection::Access::OpenExisting);
    Statement statement = connection.Prepare(sql);
    return statement.Next() ? statement.Column(0).toString() : QStringLiteral("(no row)");
  }
  [[nodiscard]] Database Open() { return workspace.OpenDatabase(path, kConnect); }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("cards.mdb"));
  Workspace workspace;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_STORE_FIXTURE_H_
