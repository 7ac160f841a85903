#include "store/recordset.h"

#include <algorithm>
#include <utility>

#include "store/connection.h"
#include "store/conversions.h"
#include "store/runtime_error.h"
#include "store/sql_text.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

std::vector<qint64> ReadRowIds(Connection& connection, const QString& sql) {
  std::vector<qint64> rowIds;
  Statement select = connection.Prepare(sql);
  while (select.Next()) {
    rowIds.push_back(select.ColumnNumber(0));
  }
  return rowIds;
}

}  // namespace

Recordset::Recordset(std::shared_ptr<Connection> connection, QString table, const QString& filter,
                     const QString& sort)
    : connection_(std::move(connection)),
      table_(std::move(table)),
      rowIds_(ReadRowIds(*connection_, sql::SelectRowIds(table_, filter, sort))) {
  if (sort.isEmpty()) {
    std::sort(rowIds_.begin(), rowIds_.end());
  }
}

Recordset::Recordset(Recordset&&) noexcept = default;

Recordset& Recordset::operator=(Recordset&& other) noexcept {
  // Statements must go before the connection that they belong to.
  scan_ = std::move(other.scan_);
  update_ = std::move(other.update_);
  connection_ = std::move(other.connection_);
  table_ = std::move(other.table_);
  filter_ = std::move(other.filter_);
  sort_ = std::move(other.sort_);
  rowIds_ = std::move(other.rowIds_);
  position_ = other.position_;
  noMatch_ = other.noMatch_;
  scanStandsOnRow_ = other.scanStandsOnRow_;
  fields_ = std::move(other.fields_);
  row_ = std::move(other.row_);
  edits_ = std::move(other.edits_);
  updateFields_ = std::move(other.updateFields_);
  return *this;
}

Recordset::~Recordset() = default;

Recordset Recordset::OpenRecordset() const {
  return {connection_, table_, filter_, sort_};
}

void Recordset::MoveFirst() {
  if (rowIds_.empty()) {
    RequireCurrentRow();
  }
  MoveTo(0);
}

void Recordset::MoveNext() {
  RequireCurrentRow();
  MoveTo(position_ + 1);
}

void Recordset::SetAbsolutePosition(qsizetype position) {
  if (position < 0 || position >= RecordCount()) {
    throw RuntimeError(ErrorNumber::NoCurrentRecord, table_);
  }
  MoveTo(position);
}

void Recordset::FindFirst(const QString& criterion) {
  qsizetype found = RecordCount();
  for (const qint64 rowId : ReadRowIds(*connection_, sql::SelectRowIds(table_, criterion, {}))) {
    const auto match = std::find(rowIds_.begin(), rowIds_.end(), rowId);
    found = std::min<qsizetype>(found, std::distance(rowIds_.begin(), match));
  }
  noMatch_ = found == RecordCount();
  MoveTo(noMatch_ ? 0 : found);
}

QVariant Recordset::Value(const QString& field) {
  LoadRow();
  const std::size_t index = FieldIndex(field);
  if (edits_) {
    for (const auto& [name, value] : *edits_) {
      if (name == field) {
        return value;
      }
    }
  }
  return (*row_)[index];
}

QString Recordset::Text(const QString& field) {
  return Value(field).toString();
}

std::int16_t Recordset::Integer(const QString& field) {
  return ToInteger(Value(field), field);
}

void Recordset::Edit() {
  LoadRow();
  edits_.emplace();
}

void Recordset::SetValue(const QString& field, const QVariant& value) {
  if (!edits_) {
    throw RuntimeError(ErrorNumber::UpdateWithoutEdit, field);
  }
  static_cast<void>(FieldIndex(field));
  for (auto& [name, edited] : *edits_) {
    if (name == field) {
      edited = value;
      return;
    }
  }
  edits_->emplace_back(field, value);
}

void Recordset::Update() {
  if (!edits_) {
    throw RuntimeError(ErrorNumber::UpdateWithoutEdit, table_);
  }
  const auto edits = std::move(*std::exchange(edits_, std::nullopt));
  if (edits.empty()) {
    return;
  }
  QStringList names;
  std::vector<QVariant> values;
  for (const auto& [name, value] : edits) {
    names.append(name);
    values.push_back(value);
  }
  values.emplace_back(rowIds_[static_cast<std::size_t>(position_)]);
  // A scan under way would keep the transaction's lock, and show the row as it was.
  if (scan_) {
    scan_->Reset();
    scanStandsOnRow_ = false;
  }
  if (!update_ || updateFields_ != names) {
    update_ = std::make_unique<Statement>(connection_->Prepare(sql::UpdateFields(table_, names)));
    updateFields_ = names;
  }
  update_->Bind(values);
  update_->Run();
  row_.reset();
}

void Recordset::CancelUpdate() {
  edits_.reset();
}

void Recordset::RequireCurrentRow() const {
  if (EndOfFile()) {
    throw RuntimeError(ErrorNumber::NoCurrentRecord, table_);
  }
}

void Recordset::MoveTo(qsizetype position) {
  position_ = position;
  row_.reset();
  edits_.reset();
}

void Recordset::LoadRow() {
  RequireCurrentRow();
  if (row_) {
    return;
  }
  if (!ScanToCurrentRow()) {
    throw RuntimeError(ErrorNumber::NoCurrentRecord, table_);
  }
  std::vector<QVariant> row;
  for (int column = 1; column < scan_->ColumnCount(); ++column) {
    row.push_back(scan_->Column(column));
  }
  row_ = std::move(row);
}

bool Recordset::ScanToCurrentRow() {
  const qint64 wanted = rowIds_[static_cast<std::size_t>(position_)];
  if (!scan_) {
    scan_ = std::make_unique<Statement>(connection_->Prepare(sql::SelectRowsFrom(table_)));
    for (int column = 1; column < scan_->ColumnCount(); ++column) {
      fields_.append(scan_->ColumnName(column));
    }
  }
  // In a walk in stored order the next row is one step away; anything else starts over.
  if (scanStandsOnRow_ && scan_->ColumnNumber(0) != wanted) {
    scanStandsOnRow_ = scan_->Next();
  }
  if (!scanStandsOnRow_ || scan_->ColumnNumber(0) != wanted) {
    scan_->Bind({wanted});
    scanStandsOnRow_ = scan_->Next();
  }
  return scanStandsOnRow_ && scan_->ColumnNumber(0) == wanted;
}

std::size_t Recordset::FieldIndex(const QString& field) const {
  const qsizetype index = fields_.indexOf(field);
  if (index < 0) {
    throw RuntimeError(ErrorNumber::ItemNotFound, u"'%1' in %2"_s.arg(field, table_));
  }
  return static_cast<std::size_t>(index);
}

}  // namespace tessaly
