#ifndef TESSALY_TOOLS_BANK_CHECKS_H_
#define TESSALY_TOOLS_BANK_CHECKS_H_

#include "tools/bank/bank_source.h"

namespace tessaly::bank {

// What each question, subject and the version must keep for the bank to be compiled at all: the
// numbers ascending, the answer of the question's kind, the choices A to D, a known subject, no
// text empty or outside printable ASCII, the subjects sorted, unique and short enough.
void CheckEntries(const BankSource& bank, Findings& findings);

// What a bank must keep to be a finished one, part by part: all 80 numbers, and 87 subjects.
void CheckCompleteness(const BankSource& bank, Findings& findings);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_CHECKS_H_
