#ifndef TESSALY_TOOLS_BANK_ANSWERS_FILE_H_
#define TESSALY_TOOLS_BANK_ANSWERS_FILE_H_

#include "tools/bank/bank_source.h"

namespace tessaly {
class Connection;
}

namespace tessaly::bank {

// Adds to an answers file, which may be a new and empty one, what the bank has and it has not:
// tables, a row for each question without one, a row for each subject without one, all of them
// unanswered. Rows that are there keep their codes and counts, even those whose question or
// subject the bank no longer has; these stand behind the others, which are in the bank's order.
//
// It is one transaction. Nothing is written where nothing is missing. Raises the failures of
// Connection, and then has changed nothing.
void CompleteAnswersFile(Connection& connection, const BankSource& bank);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_ANSWERS_FILE_H_
