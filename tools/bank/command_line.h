#ifndef TESSALY_TOOLS_BANK_COMMAND_LINE_H_
#define TESSALY_TOOLS_BANK_COMMAND_LINE_H_

#include <QStringList>
#include <QTextStream>

namespace tessaly {
class FileOperations;
}

namespace tessaly::bank {

enum class ExitStatus : int {
  Done = 0,
  Failed = 1,  // findings, or a failure
  Misused = 2,
};

// Runs the command that the arguments name, the program's own name first. Results go to `out`,
// findings and failures to `err`.
[[nodiscard]] ExitStatus RunCommand(const QStringList& arguments, FileOperations& files,
                                    QTextStream& out, QTextStream& err);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_COMMAND_LINE_H_
