#ifndef TESSALY_TESTS_END_TO_END_LINE_PROTOCOL_H_
#define TESSALY_TESTS_END_TO_END_LINE_PROTOCOL_H_

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tessaly::test {

// Requests and answers between the tests and the agent within the program: a line each, its fields
// percent-encoded and parted by blanks. The first field is the command, or "ok" or "error".
inline QByteArray EncodeLine(const QStringList& fields) {
  QByteArrayList encoded;
  for (const QString& field : fields) {
    encoded.append(field.toUtf8().toPercentEncoding());
  }
  return encoded.join(' ') + '\n';
}

inline QStringList DecodeLine(const QByteArray& line) {
  QStringList fields;
  for (const QByteArray& field : line.trimmed().split(' ')) {
    fields.append(QString::fromUtf8(QByteArray::fromPercentEncoding(field)));
  }
  return fields;
}

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_LINE_PROTOCOL_H_
