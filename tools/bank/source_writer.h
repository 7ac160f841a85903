#ifndef TESSALY_TOOLS_BANK_SOURCE_WRITER_H_
#define TESSALY_TOOLS_BANK_SOURCE_WRITER_H_

#include <QByteArray>
#include <QString>
#include <vector>

#include "tools/bank/questions_file.h"

namespace tessaly::bank {

// The sources of a part and of the version as a writer would type them: texts in blocks, their
// lines wrapped before column 100.
[[nodiscard]] QByteArray PartSourceText(const QString& table, const std::vector<QuestionRow>& rows);
[[nodiscard]] QByteArray VersionSourceText(const QString& version);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_SOURCE_WRITER_H_
