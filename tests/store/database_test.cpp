#include "store/database.h"

#include <gtest/gtest.h>

#include <optional>

#include "store/runtime_error.h"
#include "tests/support/child_process.h"
#include "tests/support/small_disk.h"
#include "tests/support/store_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kStatusOfFirst = u"SELECT Status FROM Cards WHERE No = 1"_s;

class DatabaseTest : public StoreTest {
protected:
  static void SetStatus(const Database& database, int no, const QString& status) {
    Recordset cards = database.OpenTable(u"Cards"_s);
    cards.FindFirst(u"No = %1"_s.arg(no));
    cards.Edit();
    cards.SetValue(u"Status"_s, status);
    cards.Update();
  }
  [[nodiscard]] QString CountSeenByOthers() const {
    return AskShell(path, u"SELECT count(*) FROM Cards"_s);
  }
};

TEST_F(DatabaseTest, ATableOpensByNameOrByQuery) {
  const Database database = Open();
  EXPECT_EQ(database.OpenTable(u"Cards"_s).RecordCount(), 100);
  EXPECT_EQ(database.OpenRecordset(u"SELECT * FROM Cards"_s).RecordCount(), 100);
  EXPECT_EQ(database.Path(), path);
  EXPECT_TRUE(database.IsIntact());
}

TEST_F(DatabaseTest, ATableThatIsNotThereIsNamedInTheError) {
  const Database database = Open();
  for (const QString& table : {u"Decks"_s, u""_s, u"Cards\""_s, u"Cards WHERE No = 1"_s}) {
    SCOPED_TRACE(table.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(database.OpenTable(table)), ErrorNumber::TableNotFound);
    EXPECT_RUNTIME_ERROR(static_cast<void>(database.OpenRecordset(u"SELECT * FROM "_s + table)),
                         ErrorNumber::TableNotFound);
  }
  try {
    static_cast<void>(database.OpenTable(u"Decks"_s));
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Detail(), u"'Decks' in "_s + path);
    EXPECT_EQ(error.Text(), u"The database engine cannot find the input table or query"_s);
  }
}

TEST_F(DatabaseTest, AnyOtherQueryIsASyntaxError) {
  const Database database = Open();
  for (const QString& query :
       {u"DELETE FROM Cards"_s, u"Cards"_s, u""_s, u"SELECT No FROM Cards"_s}) {
    SCOPED_TRACE(query.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(database.OpenRecordset(query)),
                         ErrorNumber::SyntaxErrorInExpression);
  }
  EXPECT_EQ(database.OpenTable(u"Cards"_s).RecordCount(), 100);
}

TEST_F(DatabaseTest, RowsAreReadInStoredOrderWithTheFieldsThatWereAskedFor) {
  Run(u"DELETE FROM Cards WHERE No > 3"_s);
  Run(u"UPDATE Cards SET No = 10 - No, Status = CASE No WHEN 2 THEN NULL ELSE 'C' END"_s);
  QStringList rows;
  const Database database = Open();
  database.ReadRows(u"Cards"_s, {u"Status"_s, u"No"_s}, [&rows](const auto& row) {
    ASSERT_EQ(row.size(), 2U);
    rows.append(row[0].toString() + row[1].toString());
  });
  EXPECT_EQ(rows, (QStringList{u"C9"_s, u"8"_s, u"C7"_s}));
}

TEST_F(DatabaseTest, RowsOfAMissingTableOrFieldAreNotRead) {
  const Database database = Open();
  const auto fail = [](const auto&) { ADD_FAILURE() << "a row was read"; };
  EXPECT_RUNTIME_ERROR(database.ReadRows(u"Decks"_s, {u"No"_s}, fail), ErrorNumber::TableNotFound);
  EXPECT_RUNTIME_ERROR(database.ReadRows(u"Cards"_s, {u"No"_s, u"Colour"_s}, fail),
                       ErrorNumber::SyntaxErrorInExpression);
}

TEST_F(DatabaseTest, AFailureWhileRowsAreReadLetsTheFileGo) {
  {
    const Database database = Open();
    EXPECT_RUNTIME_ERROR(database.ReadRows(u"Cards"_s, {u"No"_s},
                                           [](const auto&) {
                                             throw RuntimeError(ErrorNumber::Overflow, u"test"_s);
                                           }),
                         ErrorNumber::Overflow);
    SetStatus(database, 1, u"C"_s);
  }
  EXPECT_EQ(Stored(kStatusOfFirst), u"C"_s);
}

TEST_F(DatabaseTest, TheConnectStringHoldsThePassword) {
  for (const QString& connect : {u";pwd=wrong"_s, u";pwd="_s, u""_s, QString(kPassword)}) {
    SCOPED_TRACE(connect.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(workspace.OpenDatabase(path, connect)),
                         ErrorNumber::InvalidPassword);
  }
  EXPECT_TRUE(Open().IsIntact());
}

TEST_F(DatabaseTest, TwoOpeningsOfAFileSeeEachOthersChanges) {
  const Database first = Open();
  const Database second = workspace.OpenDatabase(folder.filePath(u"./cards.mdb"_s), kConnect);
  SetStatus(first, 1, u"C"_s);
  Recordset cards = second.OpenTable(u"Cards"_s);
  EXPECT_EQ(cards.Text(u"Status"_s), u"C"_s);
}

TEST_F(DatabaseTest, ClosingOneOfTwoOpeningsKeepsOthersOut) {
  if (!IsShellInstalled()) {
    GTEST_SKIP() << "the sqlcipher shell is not installed";
  }
  std::optional<Database> first = Open();
  std::optional<Database> second = Open();
  std::optional<Recordset> cards = second->OpenTable(u"Cards"_s);
  EXPECT_TRUE(CountSeenByOthers().contains(u"database is locked"_s));
  first.reset();
  EXPECT_TRUE(CountSeenByOthers().contains(u"database is locked"_s));
  second.reset();
  EXPECT_TRUE(CountSeenByOthers().contains(u"database is locked"_s));
  cards.reset();
  EXPECT_EQ(CountSeenByOthers(), u"100"_s);
}

TEST_F(DatabaseTest, ACommittedTransactionKeepsAllItsChanges) {
  {
    const Database database = Open();
    Transaction transaction(database);
    SetStatus(database, 1, u"C"_s);
    SetStatus(database, 2, u"I"_s);
    transaction.Commit();
  }
  EXPECT_EQ(Stored(u"SELECT group_concat(Status) FROM Cards WHERE No < 4"_s), u"C,I,U"_s);
}

TEST_F(DatabaseTest, ATransactionLeftWithoutCommitChangesNothing) {
  const Database database = Open();
  Recordset other = database.OpenTable(u"Cards"_s);
  EXPECT_EQ(other.Integer(u"No"_s), 1);
  {
    const Transaction transaction(database);
    SetStatus(database, 1, u"C"_s);
    SetStatus(database, 2, u"C"_s);
  }
  other.MoveNext();
  EXPECT_EQ(other.Integer(u"No"_s), 2);
  EXPECT_EQ(other.Text(u"Status"_s), u"U"_s);
  SetStatus(database, 3, u"C"_s);
  EXPECT_EQ(database.OpenTable(u"Cards"_s).Text(u"Status"_s), u"U"_s);
}

TEST_F(DatabaseTest, AnErrorWithinATransactionRollsItBack) {
  {
    const Database database = Open();
    EXPECT_RUNTIME_ERROR(
        {
          Transaction transaction(database);
          SetStatus(database, 1, u"C"_s);
          static_cast<void>(database.OpenTable(u"Decks"_s));
          transaction.Commit();
        },
        ErrorNumber::TableNotFound);
  }
  EXPECT_EQ(Stored(kStatusOfFirst), u"U"_s);
}

TEST_F(DatabaseTest, WhatWasCommittedSurvivesAKilledProcess) {
  ChildProcess child([this](const auto& standStill) {
    SetStatus(Open(), 1, u"C"_s);
    const Database database = Open();
    Transaction transaction(database);
    SetStatus(database, 2, u"C"_s);
    transaction.Commit();
    standStill();
  });
  ASSERT_TRUE(child.StandsStill());
  child.Kill();
  EXPECT_EQ(Stored(u"SELECT group_concat(Status) FROM Cards WHERE No < 4"_s), u"C,C,U"_s);
}

TEST_F(DatabaseTest, WhatWasNotCommittedIsUndoneAfterAKilledProcess) {
  const QStringList before = DumpOf(path);
  ChildProcess child([this](const auto& standStill) {
    Connection connection(path, kPassword, Connection::Access::OpenExisting);
    // So little memory for pages that changed ones reach the file before the commit.
    connection.Execute(u"PRAGMA cache_size = 3"_s);
    connection.Execute(u"BEGIN IMMEDIATE"_s);
    connection.Execute(u"UPDATE Cards SET Status = 'C', Front = Front || Front"_s);
    standStill();
  });
  ASSERT_TRUE(child.StandsStill());
  child.Kill();
  ASSERT_TRUE(QFile::exists(path + u"-journal"_s));
  EXPECT_TRUE(Open().IsIntact());
  EXPECT_EQ(DumpOf(path), before);
}

TEST_F(DatabaseTest, AFullDiskFailsTheUpdateAndKeepsTheRow) {
  SmallDisk disk(256);
  SKIP_UNLESS_MOUNTED(disk);
  path = disk.FilePath(u"cards.mdb"_s);
  CreateCards(path, 100);
  const QStringList before = DumpOf(path);
  disk.Fill();
  {
    const Database database = Open();
    EXPECT_RUNTIME_ERROR(SetStatus(database, 1, u"C"_s), ErrorNumber::DiskFull);
    Recordset cards = database.OpenTable(u"Cards"_s);
    EXPECT_EQ(cards.Text(u"Status"_s), u"U"_s);
    EXPECT_RUNTIME_ERROR(
        {
          Transaction transaction(database);
          SetStatus(database, 1, u"C"_s);
          transaction.Commit();
        },
        ErrorNumber::DiskFull);
  }
  EXPECT_EQ(DumpOf(path), before);
  disk.Free();
  SetStatus(Open(), 1, u"C"_s);
  EXPECT_EQ(Stored(kStatusOfFirst), u"C"_s);
}

TEST_F(DatabaseTest, ACompactedCopyHoldsTheSameRowsInLessRoom) {
  Run(u"DELETE FROM Cards WHERE No % 2 = 0"_s);
  const QString copy = folder.filePath(u"copy.mdb"_s);
  workspace.CompactDatabase(path, copy, kConnect);
  EXPECT_EQ(DumpOf(copy), DumpOf(path));
  EXPECT_LT(ReadBytes(copy).size(), ReadBytes(path).size());
  EXPECT_EQ(NamesIn(folder.path()), (QStringList{u"cards.mdb"_s, u"copy.mdb"_s}));
}

TEST_F(DatabaseTest, ACompactionThatFailsLeavesNoCopy) {
  const QString copy = folder.filePath(u"copy.mdb"_s);
  EXPECT_RUNTIME_ERROR(workspace.CompactDatabase(path + u"x"_s, copy, kConnect),
                       ErrorNumber::FileNotFound);
  EXPECT_RUNTIME_ERROR(workspace.CompactDatabase(path, copy, u";pwd=wrong"_s),
                       ErrorNumber::InvalidPassword);
  FlipByte(path, 1024 * 12 + 300);
  EXPECT_RUNTIME_ERROR(workspace.CompactDatabase(path, copy, kConnect),
                       ErrorNumber::UnrecognizedDatabaseFormat);
  EXPECT_EQ(NamesIn(folder.path()), QStringList{u"cards.mdb"_s});
}

TEST_F(DatabaseTest, ACompactionOntoAFullDiskLeavesNoCopy) {
  SmallDisk disk(8);
  SKIP_UNLESS_MOUNTED(disk);
  const QByteArray before = ReadBytes(path);
  ASSERT_GT(before.size(), 8 * 1024);
  EXPECT_RUNTIME_ERROR(workspace.CompactDatabase(path, disk.FilePath(u"copy.mdb"_s), kConnect),
                       ErrorNumber::DiskFull);
  EXPECT_EQ(NamesIn(disk.Folder()), QStringList());
  EXPECT_EQ(ReadBytes(path), before);
}

}  // namespace
}  // namespace tessaly::test
