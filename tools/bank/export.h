#ifndef TESSALY_TOOLS_BANK_EXPORT_H_
#define TESSALY_TOOLS_BANK_EXPORT_H_

#include <QString>

#include "tools/bank/finding.h"

namespace tessaly {
class FileOperations;
}

namespace tessaly::bank {

// Writes the sources of a questions file into a folder, which is made where it is missing: the
// version and each part that has questions. Sources of the same names are replaced. A question that
// would not come back from its source as it is becomes a finding, and then nothing is written.
// Raises the failures of Workspace and FileOperations.
void ExportBank(const QString& questionsFile, const QString& folder, FileOperations& files,
                Findings& findings);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_EXPORT_H_
