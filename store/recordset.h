#ifndef TESSALY_STORE_RECORDSET_H_
#define TESSALY_STORE_RECORDSET_H_

#include <QString>
#include <QStringList>
#include <QVariant>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tessaly {

class Connection;
class Statement;

// A walk over rows of one table. Logically it is a list of row identities, fixed when the
// recordset is opened, and a position in it, one past the end meaning "end of file"; a row whose
// fields change stays in the list even when the filter that chose it would no longer do so. Field
// values are read from the file when the walk comes to their row. It is not a cursor over the live
// table: rows added later are never seen.
//
// Moving, editing or reading without a current row raises 3021, an unknown field 3265.
class Recordset {
public:
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  // Conditions for the recordsets that are opened from this one: a filter is a condition on
  // fields, as "TutorialMode = 'U'"; a sort is a field name. This recordset itself is unchanged.
  void SetFilter(const QString& filter) { filter_ = filter; }
  [[nodiscard]] const QString& Filter() const { return filter_; }
  void SetSort(const QString& sort) { sort_ = sort; }
  [[nodiscard]] Recordset OpenRecordset() const;

  [[nodiscard]] qsizetype RecordCount() const { return std::ssize(rowIds_); }
  [[nodiscard]] bool EndOfFile() const { return position_ >= RecordCount(); }
  // True when the last FindFirst found nothing.
  [[nodiscard]] bool NoMatch() const { return noMatch_; }

  void MoveFirst();
  void MoveNext();
  // Moves to the row at a 0-based position; 3021 outside 0 to RecordCount() - 1.
  void SetAbsolutePosition(qsizetype position);
  // Moves to the first row that meets the criterion. Where none does, NoMatch() becomes true and
  // the recordset stands on its first row, or at end of file when it has none.
  void FindFirst(const QString& criterion);

  // The current row's value: text, whole number, fraction or Null.
  [[nodiscard]] QVariant Value(const QString& field);
  // The value as text, Null as an empty text.
  [[nodiscard]] QString Text(const QString& field);
  // The value as a 16-bit number; raises 13 or 6.
  [[nodiscard]] std::int16_t Integer(const QString& field);

  // Edit makes the current row ready for SetValue; Update writes it. Outside a Transaction the row
  // is on the disk when Update returns. Both SetValue and Update raise 3020 without Edit. After a
  // failed Update the row is as it was and no longer in edit mode. Moving drops the edit.
  void Edit();
  void SetValue(const QString& field, const QVariant& value);
  void Update();
  void CancelUpdate();

private:
  friend class Database;
  Recordset(std::shared_ptr<Connection> connection, QString table, const QString& filter,
            const QString& sort);

  void RequireCurrentRow() const;
  void MoveTo(qsizetype position);
  void LoadRow();
  [[nodiscard]] bool ScanToCurrentRow();
  [[nodiscard]] std::size_t FieldIndex(const QString& field) const;

  std::shared_ptr<Connection> connection_;
  QString table_;
  QString filter_;
  QString sort_;
  std::vector<qint64> rowIds_;
  qsizetype position_ = 0;
  bool noMatch_ = false;

  // Stands on the row read last, so that a walk in stored order reads each page once.
  std::unique_ptr<Statement> scan_;
  bool scanStandsOnRow_ = false;
  QStringList fields_;
  std::optional<std::vector<QVariant>> row_;
  std::optional<std::vector<std::pair<QString, QVariant>>> edits_;
  // Of the last update: a walk that changes the same fields of many rows prepares it once.
  std::unique_ptr<Statement> update_;
  QStringList updateFields_;
};

}  // namespace tessaly

#endif  // TESSALY_STORE_RECORDSET_H_
