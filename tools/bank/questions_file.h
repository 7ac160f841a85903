#ifndef TESSALY_TOOLS_BANK_QUESTIONS_FILE_H_
#define TESSALY_TOOLS_BANK_QUESTIONS_FILE_H_

#include <QString>
#include <optional>
#include <vector>

#include "tools/bank/bank_source.h"

namespace tessaly::bank {

// A question as a row of the questions file.
struct QuestionRow {
  QString no;
  QString question;
  QString explanation;
  int answerNumber = 0;  // 0 to 3
  QString subject;
  QString hint;
  std::optional<QString> link;  // Null where missing

  bool operator==(const QuestionRow&) const = default;
};

// The rows of a part that the checks have passed.
[[nodiscard]] std::vector<QuestionRow> CompilePart(const PartSource& part);

// Writes the whole questions file to a path where none is: all 24 tables, those without a source
// empty, and the version. Raises the failures of Connection.
void WriteQuestionsFile(const QString& path, const BankSource& bank);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_QUESTIONS_FILE_H_
