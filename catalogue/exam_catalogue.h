#ifndef TESSALY_CATALOGUE_EXAM_CATALOGUE_H_
#define TESSALY_CATALOGUE_EXAM_CATALOGUE_H_

#include <QLatin1StringView>
#include <array>
#include <cstdint>
#include <optional>

namespace tessaly {

// The fixed vocabulary that names the six examinations, newest first, their four parts and the 24
// question tables. Nothing of it is read from the question bank or the settings.

struct ExamEntry {
  QLatin1StringView caption;       // as ExamString and the wizard's list hold it
  QLatin1StringView code;          // two digits, the prefix of the exam's table names
  QLatin1StringView printCaption;  // in the heading of a printed question
  QLatin1StringView year;          // four digits, in the statistics report
};

struct PartEntry {
  QLatin1StringView caption;        // as SectionString and the wizard's list hold it
  QLatin1StringView paddedCaption;  // eight characters, in the statistics report
  QLatin1StringView printCaption;   // in the heading of a printed question
};

inline constexpr int kExamCount = 6;
inline constexpr int kPartCount = 4;
inline constexpr int kTableCount = kExamCount * kPartCount;

extern const std::array<ExamEntry, kExamCount> kExams;
extern const std::array<PartEntry, kPartCount> kParts;
// In catalogue order: exams newest first, within each exam parts 1 to 4.
extern const std::array<QLatin1StringView, kTableCount> kTables;

// The table of exam 0 to 5 and section 0 to 3; none for any other index.
[[nodiscard]] std::optional<QLatin1StringView> TableOf(int exam, int section);
// The table at a 1-based position in catalogue order; none outside 1 to 24.
[[nodiscard]] std::optional<QLatin1StringView> TableAt(int position);
// The two-digit code of an exam's caption, compared exactly; none for any other text.
[[nodiscard]] std::optional<QLatin1StringView> CodeOfCaption(const QString& caption);

// A table's place: its exam and section index.
struct TablePlace {
  std::uint8_t exam;
  std::int16_t section;
};
[[nodiscard]] std::optional<TablePlace> PlaceOfTable(const QString& table);
// The table after this one in catalogue order, the first one after the last.
[[nodiscard]] std::optional<QLatin1StringView> TableAfter(const QString& table);

}  // namespace tessaly

#endif  // TESSALY_CATALOGUE_EXAM_CATALOGUE_H_
