#include "store/sql_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::sql {

QString KeyStretch(int rounds) {
  return u"PRAGMA kdf_iter = %1"_s.arg(rounds);
}

QString DefaultKeyStretch(int rounds) {
  return u"PRAGMA cipher_default_kdf_iter = %1"_s.arg(rounds);
}

QString QuotedName(const QString& name) {
  QString quoted = name;
  quoted.replace(u'"', u"\"\""_s);
  return u'"' + quoted + u'"';
}

QString QuotedText(const QString& text) {
  QString quoted = text;
  quoted.replace(u'\'', u"''"_s);
  return u'\'' + quoted + u'\'';
}

QString SelectRowIds(const QString& table, const QString& filter, const QString& sort) {
  QString sql = u"SELECT rowid FROM "_s + QuotedName(table);
  if (!filter.isEmpty()) {
    sql += u" WHERE "_s + filter;
  }
  return sort.isEmpty() ? sql : sql + u" ORDER BY %1, rowid"_s.arg(sort);
}

QString SelectRowsFrom(const QString& table) {
  return u"SELECT rowid, * FROM %1 WHERE rowid >= ? ORDER BY rowid"_s.arg(QuotedName(table));
}

QString SelectFields(const QString& table, const QStringList& fields) {
  QStringList names;
  for (const QString& field : fields) {
    // Without its table, a quoted name that is no field's would be taken for a text.
    names.append(QuotedName(table) + u'.' + QuotedName(field));
  }
  return u"SELECT %1 FROM %2 ORDER BY rowid"_s.arg(names.join(u", "_s), QuotedName(table));
}

QString UpdateFields(const QString& table, const QStringList& fields) {
  QStringList assignments;
  for (const QString& field : fields) {
    assignments.append(QuotedName(field) + u" = ?"_s);
  }
  return u"UPDATE %1 SET %2 WHERE rowid = ?"_s.arg(QuotedName(table), assignments.join(u", "_s));
}

QString CreateTable(const QString& table, const QList<FieldDefinition>& fields) {
  QStringList definitions;
  for (const FieldDefinition& field : fields) {
    definitions.append(QuotedName(field.name) + u' ' + field.type);
  }
  return u"CREATE TABLE %1 (%2)"_s.arg(QuotedName(table), definitions.join(u", "_s));
}

QString CreateIndex(const QString& table, const QString& field) {
  return u"CREATE INDEX %1 ON %2 (%3)"_s.arg(QuotedName(table + field), QuotedName(table),
                                             QuotedName(field));
}

QString InsertRow(const QString& table, const QStringList& fields) {
  QStringList names;
  for (const QString& field : fields) {
    names.append(QuotedName(field));
  }
  const QStringList marks(fields.size(), u"?"_s);
  return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(QuotedName(table), names.join(u", "_s),
                                                  marks.join(u", "_s));
}

QString UpdateRowId(const QString& table) {
  return u"UPDATE %1 SET rowid = ? WHERE rowid = ?"_s.arg(QuotedName(table));
}

QString NegateRowIds(const QString& table) {
  return u"UPDATE %1 SET rowid = -rowid"_s.arg(QuotedName(table));
}

}  // namespace tessaly::sql
