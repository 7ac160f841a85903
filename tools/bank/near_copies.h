#ifndef TESSALY_TOOLS_BANK_NEAR_COPIES_H_
#define TESSALY_TOOLS_BANK_NEAR_COPIES_H_

#include <vector>

#include "tools/bank/bank_source.h"

namespace tessaly::bank {

// How alike two questions are, each figure from 0 to 1.
//
// Wording is the share of word sequences of three that the stems and choices of both have in
// common, the order of the choices aside, with every figure and every year read as the same word.
// Figures is the share of figures (amounts, rates, counts; not years) that both have in common, 1
// where neither has any.
struct Likeness {
  double wording = 0;
  double figures = 0;
};

// From which likeness on two questions are near copies: worded alike, and working the same figures.
// A question set again with other figures is a true variation however alike the words are, and so
// is one on the same figures in other words; a copy with another year or name, with its choices
// turned round or with one figure altered is neither.
inline constexpr Likeness kNearCopy{0.5, 0.6};

struct NearCopy {
  Place original;
  Place copy;  // the later of the two in the bank
  Likeness likeness;
};

// All pairs of the bank's questions that are at least so much alike.
[[nodiscard]] std::vector<NearCopy> FindNearCopies(const BankSource& bank,
                                                   const Likeness& threshold = kNearCopy);
void CheckNearCopies(const BankSource& bank, Findings& findings);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_NEAR_COPIES_H_
