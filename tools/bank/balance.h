#ifndef TESSALY_TOOLS_BANK_BALANCE_H_
#define TESSALY_TOOLS_BANK_BALANCE_H_

#include <QTextStream>
#include <array>

#include "tools/bank/bank_source.h"

namespace tessaly::bank {

// How the right answers of a part are spread, so that no habit of guessing pays.
struct PartBalance {
  int fourChoices = 0;         // questions with choices A to D
  std::array<int, 4> right{};  // how many of them each choice is right in
  int rightIsLongest = 0;      // in how many the right choice is longer than each other
  int trueFalse = 0;           // questions with the answers True and False
  int rightIsTrue = 0;
};

// Questions without a valid answer, or without four choices, are left out.
[[nodiscard]] PartBalance MeasureBalance(const PartSource& part);

// Each of A to D is right in 20 to 30 percent of its questions, True in 40 to 60 percent, and the
// right choice is the longest in 35 percent at most.
void CheckBalance(const BankSource& bank, Findings& findings);

// Writes the figures of each part, and how many questions each subject has over the bank. Once all
// 24 parts are there, subjects with fewer than six questions get a warning.
void PrintBalance(const BankSource& bank, QTextStream& out);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_BALANCE_H_
