#include "store/sql_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::sql {

QString KeyStretch(int rounds) { return u"PRAGMA kdf_iter = %1"_s.arg(rounds); }

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

QString UpdateFields(const QString& table, const QStringList& fields) {
  QStringList assignments;
  for (const QString& field : fields) {
    assignments.append(QuotedName(field) + u" = ?"_s);
  }
  return u"UPDATE %1 SET %2 WHERE rowid = ?"_s.arg(QuotedName(table), assignments.join(u", "_s));
}

}  // namespace tessaly::sql
