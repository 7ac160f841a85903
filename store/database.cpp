#include "store/database.h"

#include <QFile>
#include <QFileInfo>
#include <cstddef>
#include <utility>

#include "platform/file_operations.h"
#include "store/connection.h"
#include "store/runtime_error.h"
#include "store/sql_text.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

QString PasswordOf(const QString& connect) {
  constexpr auto kPasswordKey = ";pwd="_L1;
  return connect.startsWith(kPasswordKey) ? connect.mid(kPasswordKey.size()) : QString();
}

void ExportCopy(Connection& source, const QString& target, const QString& password) {
  Statement attach = source.Prepare(sql::kAttachCopy);
  attach.Bind({target, password});
  attach.Run();
  source.Execute(sql::kCopyWithoutJournal);
  source.Execute(sql::kCopyWithoutSync);
  source.Execute(sql::kExportToCopy);
  source.Execute(sql::kDetachCopy);
}

}  // namespace

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

Recordset Database::OpenTable(const QString& name) const {
  RequireTable(name);
  return {connection_, name, {}, {}};
}

Recordset Database::OpenRecordset(const QString& query) const {
  constexpr auto kSelectAll = "SELECT * FROM "_L1;
  if (!query.startsWith(kSelectAll)) {
    throw RuntimeError(ErrorNumber::SyntaxErrorInExpression, query);
  }
  return OpenTable(query.mid(kSelectAll.size()));
}

void Database::ReadRows(const QString& table, const QStringList& fields,
                        const std::function<void(const std::vector<QVariant>&)>& read) const {
  RequireTable(table);
  Statement select = connection_->Prepare(sql::SelectFields(table, fields));
  std::vector<QVariant> row(static_cast<std::size_t>(fields.size()));
  while (select.Next()) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      row[column] = select.Column(static_cast<int>(column));
    }
    read(row);
  }
}

void Database::RequireTable(const QString& name) const {
  Statement exists = connection_->Prepare(sql::kTableExists);
  exists.Bind({name});
  if (!exists.Next()) {
    throw RuntimeError(ErrorNumber::TableNotFound, u"'%1' in %2"_s.arg(name, Path()));
  }
}

const QString& Database::Path() const {
  return connection_->Path();
}

bool Database::IsIntact() const {
  return connection_->IsIntact();
}

Transaction::Transaction(const Database& database) : connection_(database.connection_) {
  connection_->Execute(sql::kBegin);
}

Transaction::~Transaction() {
  if (!connection_->InTransaction()) {
    return;
  }
  try {
    connection_->Execute(sql::kRollback);
  } catch (const RuntimeError&) {
    // The journal undoes the changes when the file is opened next; the failure that led here is
    // the one to report.
  }
}

void Transaction::Commit() {
  connection_->Execute(sql::kCommit);
}

Database Workspace::OpenDatabase(const QString& path, const QString& connect) {
  const QString key = QFileInfo(path).canonicalFilePath();
  std::shared_ptr<Connection> connection;
  if (const auto open = openFiles_.find(key); open != openFiles_.end()) {
    connection = open->second.lock();
  }
  if (!connection) {
    connection =
        std::make_shared<Connection>(path, PasswordOf(connect), Connection::Access::OpenExisting);
    openFiles_[key] = connection;
  }
  return Database(std::move(connection));
}

void Workspace::CompactDatabase(const QString& source, const QString& target,
                                const QString& connect) {
  const QString password = PasswordOf(connect);
  try {
    Connection connection(source, password, Connection::Access::OpenExisting);
    ExportCopy(connection, target, password);
    FlushToDisk(target);
  } catch (const RuntimeError&) {
    QFile::remove(target);
    throw;
  }
}

}  // namespace tessaly
