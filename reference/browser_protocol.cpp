#include "reference/browser_protocol.h"

using namespace Qt::StringLiterals;

namespace tessaly {

QByteArray EncodeMessage(const QStringList& fields) {
  QByteArrayList encoded;
  for (const QString& field : fields) {
    encoded.append(field.toUtf8().toPercentEncoding());
  }
  return encoded.join(' ') + '\n';
}

QStringList DecodeMessage(const QByteArray& line) {
  QStringList fields;
  for (const QByteArray& field : line.split(' ')) {
    fields.append(QString::fromUtf8(QByteArray::fromPercentEncoding(field)));
  }
  return fields;
}

QString FlagText(bool flag) {
  return flag ? u"1"_s : u"0"_s;
}

bool IsFlagSet(const QString& text) {
  return text == u"1"_s;
}

QList<QStringList> MessageReader::Add(const QByteArray& bytes) {
  pending_ += bytes;
  QList<QStringList> messages;
  qsizetype start = 0;
  for (qsizetype end = pending_.indexOf('\n'); end >= 0; end = pending_.indexOf('\n', start)) {
    messages.append(DecodeMessage(pending_.mid(start, end - start)));
    start = end + 1;
  }
  pending_.remove(0, start);
  return messages;
}

}  // namespace tessaly
