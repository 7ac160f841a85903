#ifndef TESSALY_TOOLS_BANK_BANK_SOURCE_H_
#define TESSALY_TOOLS_BANK_BANK_SOURCE_H_

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "tools/bank/finding.h"

namespace tessaly::bank {

inline constexpr QLatin1StringView kSubjectsSource{"subjects.yaml"};
inline constexpr QLatin1StringView kVersionSource{"version.yaml"};

// The keys of a question's source.
namespace source_key {
inline constexpr QLatin1StringView kNo{"no"};
inline constexpr QLatin1StringView kSubject{"subject"};
inline constexpr QLatin1StringView kAnswer{"answer"};
inline constexpr QLatin1StringView kQuestion{"question"};
inline constexpr QLatin1StringView kExplanation{"explanation"};
inline constexpr QLatin1StringView kHint{"hint"};
inline constexpr QLatin1StringView kLink{"link"};
}  // namespace source_key
inline constexpr QLatin1StringView kVersionKey{"version"};

// A question as its writer wrote it. A missing text is an empty one, a missing or unreadable
// number 0; the checks tell of both.
struct QuestionSource {
  int line = 0;
  int no = 0;
  QString subject;
  QString answer;
  QString question;
  QString explanation;
  QString hint;
  std::optional<QString> link;
};

struct PartSource {
  QString table;
  std::vector<QuestionSource> questions;  // as they stand in the file
};

struct BankSource {
  QString version;
  QStringList subjects;
  std::vector<PartSource> parts;  // those with a source, in catalogue order
};

// The name of a part's source: its table's name with ".yaml".
[[nodiscard]] QString SourceName(const QString& table);
[[nodiscard]] Place PlaceOf(const PartSource& part, const QuestionSource& question);

// Reads what stands in a folder of sources. What cannot be understood (a missing file, malformed
// YAML, an unknown or repeated key, a list where a text belongs) becomes a finding and is left out.
[[nodiscard]] BankSource ReadBankSource(const QString& folder, Findings& findings);
// Reads one part from the content of its source.
[[nodiscard]] PartSource ReadPartSource(const QString& table, const QByteArray& content,
                                        Findings& findings);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_BANK_SOURCE_H_
