#ifndef TESSALY_STORE_DATABASE_H_
#define TESSALY_STORE_DATABASE_H_

#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "store/recordset.h"

namespace tessaly {

class Connection;

// One opening of a database file. Copies refer to the same opening; the file is let go when the
// last of them, and the last recordset opened through them, is gone.
class Database {
public:
  // All rows of the table in stored order. Raises 3078 when the file has no such table.
  [[nodiscard]] Recordset OpenTable(const QString& name) const;
  // `query` is "SELECT * FROM " followed by a table name, unquoted. Raises 3078, or 3075 for any
  // other text.
  [[nodiscard]] Recordset OpenRecordset(const QString& query) const;

  // Hands some fields of every row, in stored order, to `read`. What a recordset can do as well, in
  // a fraction of its time, for work that reads a whole table and changes nothing. Raises 3078.
  void ReadRows(const QString& table, const QStringList& fields,
                const std::function<void(const std::vector<QVariant>&)>& read) const;

  [[nodiscard]] const QString& Path() const;
  [[nodiscard]] bool IsIntact() const;

private:
  friend class Workspace;
  friend class Transaction;
  explicit Database(std::shared_ptr<Connection> connection);
  void RequireTable(const QString& name) const;

  std::shared_ptr<Connection> connection_;
};

// The changes made through a database while a transaction lives reach the disk together, when
// Commit returns, or not at all. Rolls back when it is destroyed uncommitted.
class Transaction {
public:
  explicit Transaction(const Database& database);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  void Commit();

private:
  std::shared_ptr<Connection> connection_;
};

// Opens and compacts database files. A file is held exclusively while it is open: another process
// is shut out (error 70), while several openings within this workspace share one connection,
// because the locks belong to the process and would be lost with the first of two connections.
class Workspace {
public:
  // `connect` is ";pwd=" followed by the password. Raises 53, 70, 3031 or 3343; see Connection.
  [[nodiscard]] Database OpenDatabase(const QString& path, const QString& connect);

  // Writes a compacted copy of `source`, which must not be open, to `target`, which must not
  // exist; both have the same password. The copy is on the disk when this returns; after a failure
  // no part of it is left.
  void CompactDatabase(const QString& source, const QString& target, const QString& connect);

private:
  std::map<QString, std::weak_ptr<Connection>> openFiles_;
};

}  // namespace tessaly

#endif  // TESSALY_STORE_DATABASE_H_
