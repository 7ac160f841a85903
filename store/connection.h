#ifndef TESSALY_STORE_CONNECTION_H_
#define TESSALY_STORE_CONNECTION_H_

#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace tessaly {

// A prepared statement of one connection; it must not outlive it. Values are text (QString), whole
// numbers (qlonglong), fractions (double) or Null (an invalid QVariant).
class Statement {
public:
  Statement(Statement&& other) noexcept;
  Statement& operator=(Statement&& other) noexcept;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement();

  // Makes the statement ready to run again with these values for its "?" marks, in order.
  void Bind(const std::vector<QVariant>& values);
  // Steps to the next row; false when there is none. Raises the failures of Connection.
  [[nodiscard]] bool Next();
  // Runs to the end, for statements that return no rows of interest, and resets.
  void Run();
  // Ends the run, so that the statement holds no lock on the file.
  void Reset();

  [[nodiscard]] int ColumnCount() const;
  [[nodiscard]] QString ColumnName(int column) const;
  [[nodiscard]] QVariant Column(int column) const;
  [[nodiscard]] qlonglong ColumnNumber(int column) const;

private:
  friend class Connection;
  Statement(sqlite3* database, sqlite3_stmt* statement, QString path);

  sqlite3* database_;
  sqlite3_stmt* statement_;
  QString path_;
};

// One open, exclusively held, password-protected database file. The only class that knows the
// engine's C interface. Every failure is raised as a RuntimeError whose detail is the file's path.
class Connection {
public:
  enum class Access {
    OpenExisting,  // the file must be there
    CreateNew,     // the file must not be there
  };

  // Opens `path` and proves each step: the file is there (else 53), is a database (else 3343),
  // opens with the password (else 3031) and is not held by another process (else 70). A file on
  // read-only media is opened for reading; the first change of it then raises 70.
  Connection(const QString& path, const QString& password, Access access);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  [[nodiscard]] Statement Prepare(const QString& sql);
  void Execute(const QString& sql);

  [[nodiscard]] const QString& Path() const { return path_; }
  [[nodiscard]] bool InTransaction() const;
  // True when the engine finds every page authentic and every table and index sound.
  [[nodiscard]] bool IsIntact();

private:
  void Unlock(const QString& password);
  void TakeExclusiveLock();

  QString path_;
  sqlite3* database_ = nullptr;
};

// How often the password is stretched into the key. It is compiled into the program, so that
// stretching it would protect nothing and cost every opening of a file 50 ms.
inline constexpr int kKeyStretchRounds = 100;

}  // namespace tessaly

#endif  // TESSALY_STORE_CONNECTION_H_
