#include "store/connection.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <bitset>
#include <utility>

#include "store/runtime_error.h"
#include "store/sql_text.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kPageBytes = 1024;

ErrorNumber NumberOf(int engineCode) {
  switch (engineCode & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_CANTOPEN:
      return ErrorNumber::PermissionDenied;
    case SQLITE_FULL:
      return ErrorNumber::DiskFull;
    case SQLITE_NOTADB:
      return ErrorNumber::InvalidPassword;
    case SQLITE_CORRUPT:
    case SQLITE_NOMEM:  // what the cipher reports for a page whose authentication code is wrong
      return ErrorNumber::UnrecognizedDatabaseFormat;
    case SQLITE_ERROR:
      return ErrorNumber::SyntaxErrorInExpression;
    default:
      return ErrorNumber::DeviceIo;
  }
}

// The export of a copy reports every failure as a general error, with the true one's message.
int TrueCode(int engineCode, const QString& message) {
  if (engineCode == SQLITE_ERROR) {
    for (const int code : {SQLITE_FULL, SQLITE_CORRUPT, SQLITE_NOMEM, SQLITE_NOTADB, SQLITE_IOERR,
                           SQLITE_READONLY, SQLITE_CANTOPEN}) {
      if (message == QString::fromUtf8(sqlite3_errstr(code))) {
        return code;
      }
    }
  }
  return engineCode;
}

// To be made before the statement is reset, which would overwrite the engine's message.
RuntimeError FailureOf(sqlite3* database, int engineCode, const QString& path) {
  const QString message = QString::fromUtf8(sqlite3_errmsg(database));
  return RuntimeError(NumberOf(TrueCode(engineCode, message)), u"%1: %2"_s.arg(path, message));
}

[[noreturn]] void RaiseFailure(sqlite3* database, int engineCode, const QString& path) {
  throw FailureOf(database, engineCode, path);
}

// A page of an encrypted file is indistinguishable from noise: of its 1,024 bytes about 251
// different values occur, with a deviation of 2. A text, an archive's header or a plain database
// stays far below, so that a foreign file can be told from a wrong password.
bool LooksEncrypted(const QByteArray& page) {
  std::bitset<256> seen;
  for (const char byte : page) {
    seen.set(static_cast<unsigned char>(byte));
  }
  constexpr std::size_t kLeastDifferentBytes = 225;
  return seen.count() >= kLeastDifferentBytes;
}

// Must run before the engine opens the file: closing any handle of a file drops every lock that
// this process holds on it.
void RequireDatabaseFile(const QString& path) {
  if (!QFileInfo::exists(path)) {
    throw RuntimeError(ErrorNumber::FileNotFound, path);
  }
  QFile file(path);
  if (!QFileInfo(path).isFile() || file.size() == 0 || file.size() % kPageBytes != 0) {
    throw RuntimeError(ErrorNumber::UnrecognizedDatabaseFormat, path);
  }
  if (!file.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
  if (!LooksEncrypted(file.read(kPageBytes))) {
    throw RuntimeError(ErrorNumber::UnrecognizedDatabaseFormat, path);
  }
}

}  // namespace

Statement::Statement(sqlite3* database, sqlite3_stmt* statement, QString path)
    : database_(database), statement_(statement), path_(std::move(path)) {}

Statement::Statement(Statement&& other) noexcept
    : database_(other.database_),
      statement_(std::exchange(other.statement_, nullptr)),
      path_(std::move(other.path_)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
  std::swap(database_, other.database_);
  std::swap(statement_, other.statement_);
  std::swap(path_, other.path_);
  return *this;
}

Statement::~Statement() {
  sqlite3_finalize(statement_);
}

void Statement::Bind(const std::vector<QVariant>& values) {
  Reset();
  int position = 0;
  for (const QVariant& value : values) {
    ++position;
    int result = SQLITE_OK;
    if (value.isNull()) {
      result = sqlite3_bind_null(statement_, position);
    } else if (value.typeId() == QMetaType::QString) {
      const QByteArray utf8 = value.toString().toUtf8();
      result = sqlite3_bind_text(statement_, position, utf8.constData(),
                                 static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    } else if (value.typeId() == QMetaType::Double) {
      result = sqlite3_bind_double(statement_, position, value.toDouble());
    } else {
      result = sqlite3_bind_int64(statement_, position, value.toLongLong());
    }
    if (result != SQLITE_OK) {
      RaiseFailure(database_, result, path_);
    }
  }
}

bool Statement::Next() {
  const int result = sqlite3_step(statement_);
  if (result == SQLITE_ROW) {
    return true;
  }
  if (result != SQLITE_DONE) {
    const RuntimeError failure = FailureOf(database_, result, path_);
    Reset();
    throw failure;
  }
  Reset();
  return false;
}

void Statement::Run() {
  while (Next()) {
  }
}

void Statement::Reset() {
  // Its result repeats the failure of the last step, which Next has raised already.
  static_cast<void>(sqlite3_reset(statement_));
}

int Statement::ColumnCount() const {
  return sqlite3_column_count(statement_);
}

QString Statement::ColumnName(int column) const {
  return QString::fromUtf8(sqlite3_column_name(statement_, column));
}

QVariant Statement::Column(int column) const {
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return static_cast<qlonglong>(sqlite3_column_int64(statement_, column));
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement_, column);
    default: {
      const auto* text = static_cast<const char*>(
          static_cast<const void*>(sqlite3_column_text(statement_, column)));
      return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
    }
  }
}

qlonglong Statement::ColumnNumber(int column) const {
  return sqlite3_column_int64(statement_, column);
}

Connection::Connection(const QString& path, const QString& password, Access access) : path_(path) {
  if (access == Access::OpenExisting) {
    RequireDatabaseFile(path);
  } else if (QFileInfo::exists(path)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
  // Without the right to create, a compacted copy could not be attached.
  const int result = sqlite3_open_v2(path.toUtf8().constData(), &database_,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  try {
    if (result != SQLITE_OK) {
      RaiseFailure(database_, result, path_);
    }
    Unlock(password);
    TakeExclusiveLock();
  } catch (...) {
    sqlite3_close(database_);
    throw;
  }
}

Connection::~Connection() {
  // Every recordset keeps its connection alive, so nothing is left that could make this fail.
  static_cast<void>(sqlite3_close(database_));
}

Statement Connection::Prepare(const QString& sql) {
  const QByteArray utf8 = sql.toUtf8();
  sqlite3_stmt* statement = nullptr;
  const int result = sqlite3_prepare_v2(database_, utf8.constData(), static_cast<int>(utf8.size()),
                                        &statement, nullptr);
  if (result != SQLITE_OK) {
    RaiseFailure(database_, result, path_);
  }
  return {database_, statement, path_};
}

void Connection::Execute(const QString& sql) {
  Prepare(sql).Run();
}

bool Connection::InTransaction() const {
  return sqlite3_get_autocommit(database_) == 0;
}

bool Connection::IsIntact() {
  Statement check = Prepare(sql::kIntegrityCheck);
  return check.Next() && check.Column(0).toString() == "ok"_L1;
}

void Connection::Unlock(const QString& password) {
  const QByteArray key = password.toUtf8();
  // An empty password is the only one that is refused before the file is read.
  if (sqlite3_key(database_, key.constData(), static_cast<int>(key.size())) != SQLITE_OK) {
    throw RuntimeError(ErrorNumber::InvalidPassword, path_);
  }
  // Attached files, as compaction writes them, take the default instead of the statement.
  Execute(sql::KeyStretch(kKeyStretchRounds));
  Execute(sql::DefaultKeyStretch(kKeyStretchRounds));
  Execute(sql::kExclusiveLocking);
  Execute(sql::kFullSync);
}

void Connection::TakeExclusiveLock() {
  Execute(sql::kFirstRead);
  if (sqlite3_db_readonly(database_, "main") == 1) {
    return;
  }
  Execute(sql::kBeginExclusive);
  Execute(sql::kCommit);
}

}  // namespace tessaly
