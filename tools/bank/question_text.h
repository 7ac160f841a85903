#ifndef TESSALY_TOOLS_BANK_QUESTION_TEXT_H_
#define TESSALY_TOOLS_BANK_QUESTION_TEXT_H_

#include <QChar>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace tessaly::bank {

inline constexpr int kFirstNumber = 1;
inline constexpr int kLastNumber = 80;

struct Choice {
  QChar letter;
  QString text;
};

// A question's text taken apart. Every paragraph and every choice is one line, its source's lines
// joined with single blanks.
struct QuestionText {
  QStringList stem;  // its paragraphs
  std::vector<Choice> choices;
};

// The paragraphs of a source text, which blank lines separate.
[[nodiscard]] QStringList Paragraphs(const QString& source);
// As the question bank holds it: the paragraphs with a blank line between them.
[[nodiscard]] QString JoinedParagraphs(const QString& source);

// True where a line begins as a choice does: with a letter from A to E and a full stop. E is no
// choice of any question, and is told apart so that a fifth choice is found out.
[[nodiscard]] bool BeginsChoice(const QString& line);

// The choices are the last paragraph, if that begins with one.
[[nodiscard]] QuestionText SplitQuestion(const QString& source);
// As the question bank holds it: the stem, a blank line, then a line a choice.
[[nodiscard]] QString JoinedQuestion(const QuestionText& question);

// Whether the question of a table has the answers True and False.
[[nodiscard]] bool IsTrueFalse(const QString& table, int no);
// The number of an answer by its name, A to D or True or False; none for a name outside the kind.
[[nodiscard]] std::optional<int> AnswerNumberOf(const QString& answer, bool trueFalse);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_QUESTION_TEXT_H_
