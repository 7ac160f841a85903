#ifndef TESSALY_TESTS_SUPPORT_FILE_CONTENTS_H_
#define TESSALY_TESTS_SUPPORT_FILE_CONTENTS_H_

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tessaly {
class Connection;
}

namespace tessaly::test {

// A file's bytes, for looking at it and for damaging it. A failure fails the test.
[[nodiscard]] QByteArray ReadBytes(const QString& path);
void WriteBytes(const QString& path, const QByteArray& bytes);
void Shrink(const QString& path, qint64 bytes);
void FlipByte(const QString& path, qint64 position);

// The names in a folder, hidden ones included, in alphabetic order.
[[nodiscard]] QStringList NamesIn(const QString& folder);

// Every table, index and row of a database, a line each, in stored order: two files with the same
// dump hold the same. Raises the failures of Connection.
[[nodiscard]] QStringList DumpOf(Connection& connection);
[[nodiscard]] QStringList DumpOf(const QString& path);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_FILE_CONTENTS_H_
