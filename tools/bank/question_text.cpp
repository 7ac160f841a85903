#include "tools/bank/question_text.h"

#include <cstdint>

#include "catalogue/exam_catalogue.h"
#include "session/feedback_texts.h"
#include "session/question_display.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

constexpr auto kBlankLine = "\n\n"_L1;

// The paragraphs as lists of their lines.
QList<QStringList> ParagraphLines(const QString& source) {
  QList<QStringList> paragraphs;
  bool within = false;
  for (const QString& sourceLine : source.split(u'\n')) {
    const QString line = sourceLine.simplified();
    if (line.isEmpty()) {
      within = false;
      continue;
    }
    if (!within) {
      paragraphs.append(QStringList());
    }
    within = true;
    paragraphs.last().append(line);
  }
  return paragraphs;
}

std::vector<Choice> ChoicesOf(const QStringList& lines) {
  constexpr int kMarkLength = 2;
  std::vector<Choice> choices;
  for (const QString& line : lines) {
    if (BeginsChoice(line)) {
      choices.push_back({line.front(), line.mid(kMarkLength)});
    } else {
      choices.back().text += u' ' + line;
    }
  }
  for (Choice& choice : choices) {
    choice.text = choice.text.trimmed();
  }
  return choices;
}

}  // namespace

QStringList Paragraphs(const QString& source) {
  QStringList paragraphs;
  for (const QStringList& lines : ParagraphLines(source)) {
    paragraphs.append(lines.join(u' '));
  }
  return paragraphs;
}

QString JoinedParagraphs(const QString& source) {
  return Paragraphs(source).join(kBlankLine);
}

bool BeginsChoice(const QString& line) {
  return line.size() >= 2 && line[0] >= u'A' && line[0] <= u'E' && line[1] == u'.' &&
         (line.size() == 2 || line[2] == u' ');
}

QuestionText SplitQuestion(const QString& source) {
  QList<QStringList> paragraphs = ParagraphLines(source);
  QuestionText question;
  if (!paragraphs.isEmpty() && BeginsChoice(paragraphs.last().first())) {
    question.choices = ChoicesOf(paragraphs.takeLast());
  }
  for (const QStringList& lines : paragraphs) {
    question.stem.append(lines.join(u' '));
  }
  return question;
}

QString JoinedQuestion(const QuestionText& question) {
  QStringList choices;
  for (const Choice& choice : question.choices) {
    choices.append(choice.letter + u". "_s + choice.text);
  }
  QStringList paragraphs = question.stem;
  if (!choices.isEmpty()) {
    paragraphs.append(choices.join(u'\n'));
  }
  return paragraphs.join(kBlankLine);
}

bool IsTrueFalse(const QString& table, int no) {
  const auto place = PlaceOfTable(table);
  return place && IsTrueFalseQuestion(place->section, no);
}

std::optional<int> AnswerNumberOf(const QString& answer, bool trueFalse) {
  for (std::int16_t number = 0; !AnswerName(number, trueFalse).isEmpty(); ++number) {
    if (AnswerName(number, trueFalse) == answer) {
      return number;
    }
  }
  return std::nullopt;
}

}  // namespace tessaly::bank
