#ifndef TESSALY_TOOLS_BANK_COMPILE_H_
#define TESSALY_TOOLS_BANK_COMPILE_H_

#include <QString>

#include "tools/bank/bank_source.h"

namespace tessaly {
class FileOperations;
}

namespace tessaly::bank {

struct BankFiles {
  QString questions;
  QString answers;
};

// Makes both files of the bank from sources that the checks have passed. The questions file is
// written anew; the answers file is made where it is missing and completed where it is there. Both
// are written beside their places and moved into them, so that whatever cuts this off leaves each
// of them whole, old or new.
//
// Files that are there must open with the password and not be held by a running program, else
// nothing is changed. Raises the failures of Connection and FileOperations.
void CompileBank(const BankSource& bank, const BankFiles& paths, FileOperations& files);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_COMPILE_H_
