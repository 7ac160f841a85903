#include "tools/bank/source_writer.h"

#include <QRegularExpression>
#include <QStringList>
#include <cstdint>

#include "session/feedback_texts.h"
#include "tools/bank/question_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

constexpr qsizetype kLastColumn = 100;
constexpr auto kBlockIndent = "    "_L1;

// Wraps one line of the bank. A word that would look like the begin of a choice at the begin of a
// line stays with the word before it.
QStringList Wrap(const QString& text) {
  constexpr qsizetype kWidth = kLastColumn - kBlockIndent.size();
  QStringList lines{QString()};
  for (const QString& word : text.split(u' ')) {
    QString& line = lines.last();
    if (line.isEmpty()) {
      line = word;
    } else if (line.size() + 1 + word.size() <= kWidth || BeginsChoice(word)) {
      line += u' ' + word;
    } else {
      lines.append(word);
    }
  }
  return lines;
}

QString Block(QLatin1StringView key, const QString& text) {
  QString block = u"  %1: |\n"_s.arg(key);
  for (const QString& textLine : text.split(u'\n')) {
    for (const QString& line : Wrap(textLine)) {
      block += line.isEmpty() ? u"\n"_s : kBlockIndent + line + u'\n';
    }
  }
  return block;
}

// A text that begins with a letter or digit and holds nothing that YAML could take for a mark
// stands as it is; any other is quoted.
QString Scalar(const QString& text) {
  static const QRegularExpression plain(u"^[A-Za-z0-9](?:[^:#\\n]|:(?=\\S)|(?<=\\S)#)*$"_s);
  static const QRegularExpression nothing(u"^null$"_s, QRegularExpression::CaseInsensitiveOption);
  const bool isPlain =
      plain.match(text).hasMatch() && !nothing.match(text).hasMatch() && !text.endsWith(u' ');
  if (isPlain) {
    return text;
  }
  QString quoted = text;
  quoted.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
  return u'"' + quoted + u'"';
}

QString Line(QLatin1StringView key, const QString& value) {
  return u"  %1: %2\n"_s.arg(key, Scalar(value));
}

QString QuestionSourceText(const QString& table, const QuestionRow& row) {
  const bool trueFalse = IsTrueFalse(table, row.no.toInt());
  QString text = u"- %1: %2\n"_s.arg(source_key::kNo, row.no);
  text += Line(source_key::kSubject, row.subject);
  text +=
      Line(source_key::kAnswer, AnswerName(static_cast<std::int16_t>(row.answerNumber), trueFalse));
  text += Block(source_key::kQuestion, row.question);
  text += Block(source_key::kExplanation, row.explanation);
  text += Line(source_key::kHint, row.hint);
  if (row.link) {
    text += Line(source_key::kLink, *row.link);
  }
  return text;
}

}  // namespace

QByteArray PartSourceText(const QString& table, const std::vector<QuestionRow>& rows) {
  QString text;
  for (const QuestionRow& row : rows) {
    text += QuestionSourceText(table, row);
  }
  return text.toUtf8();
}

QByteArray VersionSourceText(const QString& version) {
  return u"%1: %2\n"_s.arg(kVersionKey, Scalar(version)).toUtf8();
}

}  // namespace tessaly::bank
