#include "tests/support/file_contents.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "store/connection.h"
#include "store/question_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

QString LineOf(const Statement& row) {
  QStringList values;
  for (int column = 0; column < row.ColumnCount(); ++column) {
    const QVariant value = row.Column(column);
    values.append(value.isValid() ? value.toString() : u"(Null)"_s);
  }
  return values.join(u'|');
}

}  // namespace

QByteArray ReadBytes(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

void WriteBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
  EXPECT_EQ(file.write(bytes), bytes.size());
}

void Shrink(const QString& path, qint64 bytes) {
  EXPECT_TRUE(QFile::resize(path, bytes));
}

void FlipByte(const QString& path, qint64 position) {
  QByteArray bytes = ReadBytes(path);
  bytes[position] = static_cast<char>(~bytes[position]);
  WriteBytes(path, bytes);
}

QStringList NamesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QStringList DumpOf(Connection& connection) {
  QStringList lines;
  QStringList tables;
  Statement schema =
      connection.Prepare(u"SELECT type, name, sql FROM sqlite_master ORDER BY type, name"_s);
  while (schema.Next()) {
    lines.append(LineOf(schema));
    if (schema.Column(0).toString() == "table"_L1) {
      tables.append(schema.Column(1).toString());
    }
  }
  for (const QString& table : tables) {
    Statement rows = connection.Prepare(u"SELECT * FROM \"%1\" ORDER BY rowid"_s.arg(table));
    while (rows.Next()) {
      lines.append(table + u": "_s + LineOf(rows));
    }
  }
  return lines;
}

QStringList DumpOf(const QString& path) {
  Connection connection(path, kPassword, Connection::Access::OpenExisting);
  return DumpOf(connection);
}

}  // namespace tessaly::test
