#include "store/connection.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QRandomGenerator>

#include "store/runtime_error.h"
#include "tests/support/child_process.h"
#include "tests/support/small_disk.h"
#include "tests/support/store_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr qsizetype kPageBytes = 1024;

QByteArray Noise(qsizetype bytes) {
  QRandomGenerator random(20020101);
  QByteArray noise;
  while (noise.size() < bytes) {
    noise.append(static_cast<char>(random.bounded(256)));
  }
  return noise;
}

QByteArray Picture() {
  return "\x89PNG\r\n\x1a\n" + QByteArray("\0\0\0\rIHDR", 8) + Noise(5000);
}

// A database of the same engine that has no password.
QByteArray UnprotectedDatabase() {
  return "SQLite format 3" + QByteArray(kPageBytes * 2 - 15, '\0');
}

class ConnectionTest : public StoreTest {
protected:
  void OpenFile(const QString& password = kPassword) {
    const Connection connection(path, password, Connection::Access::OpenExisting);
  }
  // What a user of a damaged file meets: true when something said so, on opening, checking or
  // reading. Rows that are read without a word must be the right ones.
  bool DamageIsNoticed(const QStringList& whole) {
    try {
      Connection connection(path, kPassword, Connection::Access::OpenExisting);
      const QStringList rows = DumpOf(connection);
      EXPECT_EQ(rows, whole);
      return !connection.IsIntact();
    } catch (const RuntimeError& error) {
      EXPECT_TRUE(error.Number() == ErrorNumber::UnrecognizedDatabaseFormat ||
                  error.Number() == ErrorNumber::InvalidPassword ||
                  error.Number() == ErrorNumber::DeviceIo)
          << error.what();
      return true;
    }
  }
};

TEST_F(ConnectionTest, OpensWithItsPasswordAndIsIntact) {
  Connection connection(path, kPassword, Connection::Access::OpenExisting);
  EXPECT_EQ(connection.Path(), path);
  EXPECT_TRUE(connection.IsIntact());
  EXPECT_FALSE(connection.InTransaction());
}

TEST_F(ConnectionTest, AMissingFileIsNotFoundAndNotMade) {
  path = folder.filePath(u"missing.mdb"_s);
  EXPECT_RUNTIME_ERROR(OpenFile(), ErrorNumber::FileNotFound);
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ConnectionTest, AWrongPasswordIsTurnedAway) {
  for (const QString& password : {u"tessera-2001"_s, u"Tessera-2002"_s, u"x"_s, u""_s}) {
    SCOPED_TRACE(password.toStdString());
    EXPECT_RUNTIME_ERROR(OpenFile(password), ErrorNumber::InvalidPassword);
  }
  OpenFile();
}

TEST_F(ConnectionTest, AnEmptyOrCutOffFileIsNoDatabase) {
  const auto size = ReadBytes(path).size();
  ASSERT_GT(size, 10 * kPageBytes);
  for (const qint64 bytes : {size - kPageBytes, size - 1, size / 2 + 1, qint64{5} * kPageBytes,
                             qint64{kPageBytes}, qint64{kPageBytes} - 1, qint64{1}, qint64{0}}) {
    SCOPED_TRACE(bytes);
    Shrink(path, bytes);
    EXPECT_RUNTIME_ERROR(OpenFile(), ErrorNumber::UnrecognizedDatabaseFormat);
    EXPECT_EQ(ReadBytes(path).size(), bytes);
  }
}

TEST_F(ConnectionTest, AForeignFileIsNoDatabaseAndStaysAsItIs) {
  const QByteArray foreignFiles[] = {"Dear reader,\n",
                                     QByteArray("A line of text.\n").repeated(kPageBytes),
                                     UnprotectedDatabase(),
                                     Picture(),
                                     Noise(3 * kPageBytes + 7),
                                     Noise(500),
                                     QByteArray(8 * kPageBytes, '\0')};
  for (const QByteArray& foreign : foreignFiles) {
    SCOPED_TRACE(foreign.left(8).toHex().toStdString());
    WriteBytes(path, foreign);
    EXPECT_RUNTIME_ERROR(OpenFile(), ErrorNumber::UnrecognizedDatabaseFormat);
    EXPECT_EQ(ReadBytes(path), foreign);
  }
}

// Whole pages of noise cannot be told from a file with another password.
TEST_F(ConnectionTest, PagesOfNoiseDoNotOpenWithThePassword) {
  WriteBytes(path, Noise(4 * kPageBytes));
  EXPECT_RUNTIME_ERROR(OpenFile(), ErrorNumber::InvalidPassword);
}

TEST_F(ConnectionTest, AFolderInTheFilesPlaceIsNoDatabase) {
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QDir().mkdir(path));
  EXPECT_RUNTIME_ERROR(OpenFile(), ErrorNumber::UnrecognizedDatabaseFormat);
}

TEST_F(ConnectionTest, AFlippedByteInAnyPageIsNoticed) {
  const QStringList whole = DumpOf(path);
  const QByteArray bytes = ReadBytes(path);
  // Content, initial vector and authentication code of a page.
  for (const int offset : {0, 8, 500, 975, 980, 1000}) {
    for (qint64 page = 0; page < bytes.size(); page += kPageBytes) {
      SCOPED_TRACE(page + offset);
      WriteBytes(path, bytes);
      FlipByte(path, page + offset);
      EXPECT_TRUE(DamageIsNoticed(whole));
    }
  }
}

// The last bytes of a page are padding. A change there may pass, but changes nothing that is read.
TEST_F(ConnectionTest, AFlippedByteInAPagesPaddingHarmsNoRow) {
  const QStringList whole = DumpOf(path);
  const QByteArray bytes = ReadBytes(path);
  for (qint64 page = 0; page < bytes.size(); page += kPageBytes) {
    SCOPED_TRACE(page);
    WriteBytes(path, bytes);
    FlipByte(path, page + kPageBytes - 1);
    static_cast<void>(DamageIsNoticed(whole));
  }
}

TEST_F(ConnectionTest, SwappedPagesAreNoticed) {
  const QStringList whole = DumpOf(path);
  QByteArray bytes = ReadBytes(path);
  const QByteArray second = bytes.mid(kPageBytes, kPageBytes);
  const QByteArray third = bytes.mid(2 * kPageBytes, kPageBytes);
  bytes.replace(kPageBytes, kPageBytes, third);
  bytes.replace(2 * kPageBytes, kPageBytes, second);
  WriteBytes(path, bytes);
  EXPECT_TRUE(DamageIsNoticed(whole));
}

TEST_F(ConnectionTest, AFileHeldByAnotherProcessIsDeniedUntilThatProcessDies) {
  ChildProcess holder([this](const auto& standStill) {
    const Connection connection(path, kPassword, Connection::Access::OpenExisting);
    standStill();
  });
  ASSERT_TRUE(holder.StandsStill());
  EXPECT_RUNTIME_ERROR(OpenFile(), ErrorNumber::PermissionDenied);
  holder.Kill();
  OpenFile();
}

TEST_F(ConnectionTest, AnOpenFileIsLockedForOtherPrograms) {
  if (!IsShellInstalled()) {
    GTEST_SKIP() << "the sqlcipher shell is not installed";
  }
  const QString count = u"SELECT count(*) FROM Cards"_s;
  {
    const Connection connection(path, kPassword, Connection::Access::OpenExisting);
    EXPECT_TRUE(AskShell(path, count).contains(u"database is locked"_s));
  }
  EXPECT_EQ(AskShell(path, count), u"100"_s);
}

TEST_F(ConnectionTest, AFileOnAReadOnlyVolumeCanBeReadButNotChanged) {
  SmallDisk disk(512);
  SKIP_UNLESS_MOUNTED(disk);
  path = disk.FilePath(u"cards.mdb"_s);
  CreateCards(path, 10);
  disk.SetReadOnly(true);
  Connection connection(path, kPassword, Connection::Access::OpenExisting);
  EXPECT_TRUE(connection.IsIntact());
  EXPECT_EQ(DumpOf(connection).size(), 2 + 10);
  EXPECT_RUNTIME_ERROR(connection.Execute(u"UPDATE Cards SET Status = 'C'"_s),
                       ErrorNumber::PermissionDenied);
}

TEST_F(ConnectionTest, ANewFileNeverReplacesOneThatIsThere) {
  const QByteArray before = ReadBytes(path);
  EXPECT_RUNTIME_ERROR(Connection(path, kPassword, Connection::Access::CreateNew),
                       ErrorNumber::PermissionDenied);
  EXPECT_EQ(ReadBytes(path), before);
}

TEST_F(ConnectionTest, ANewFileNeedsAFolderAndAPassword) {
  EXPECT_RUNTIME_ERROR(
      Connection(folder.filePath(u"none/new.mdb"_s), kPassword, Connection::Access::CreateNew),
      ErrorNumber::PermissionDenied);
  EXPECT_RUNTIME_ERROR(Connection(folder.filePath(u"new.mdb"_s), {}, Connection::Access::CreateNew),
                       ErrorNumber::InvalidPassword);
}

TEST_F(ConnectionTest, NothingOfTheContentCanBeReadInTheFile) {
  const QByteArray bytes = ReadBytes(path);
  EXPECT_FALSE(bytes.contains("Front"));
  EXPECT_FALSE(bytes.contains("SQLite"));
}

TEST_F(ConnectionTest, AStatementThatIsNoneIsASyntaxErrorNamingTheFile) {
  Connection connection(path, kPassword, Connection::Access::OpenExisting);
  try {
    connection.Execute(u"SELECT FROM WHERE"_s);
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::SyntaxErrorInExpression);
    EXPECT_EQ(error.Detail(), path + u": near \"FROM\": syntax error"_s);
  }
}

TEST_F(ConnectionTest, ValuesComeBackAsTheyWereBound) {
  const QVariant values[] = {u""_s,
                             u"it's \"quoted\"; --"_s,
                             u"§ 2587 – Größe 日本 \U0001F600"_s,
                             u"one\ntwo\r\n"_s,
                             42LL,
                             -9223372036854775807LL,
                             0.1,
                             QVariant()};
  Connection connection(path, kPassword, Connection::Access::OpenExisting);
  Statement echo = connection.Prepare(u"SELECT ? AS Value"_s);
  EXPECT_EQ(echo.ColumnName(0), u"Value"_s);
  for (const QVariant& value : values) {
    SCOPED_TRACE(value.toString().toStdString());
    echo.Bind({value});
    ASSERT_TRUE(echo.Next());
    EXPECT_EQ(echo.Column(0), value);
    EXPECT_FALSE(echo.Next());
  }
}

}  // namespace
}  // namespace tessaly::test
