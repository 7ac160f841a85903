#ifndef TESSALY_STATS_SECTION_STATISTICS_H_
#define TESSALY_STATS_SECTION_STATISTICS_H_

#include <QString>
#include <cstdint>

namespace tessaly {

class Database;

// What one exam part counts in one study mode.
struct SectionTally {
  std::int16_t Asked = 0;     // rows that are not unanswered
  std::int16_t Correct = 0;   // rows last answered correctly
  std::int16_t Possible = 0;  // points of the asked rows
  std::int16_t Actual = 0;    // points of the correct rows
};

// Points of a question by its number and section index: in sections 0 to 2, 1 for numbers to 20, 2
// to 45, 3 to 80; in section 3, 1 to 40 and 2 to 80; 0 above 80 and for any other section.
[[nodiscard]] std::int16_t QuestionWeight(int section, int questionNo);

// Adds one row with this status code. A sum that would leave the 16-bit range raises 6 Overflow and
// leaves what was counted before it.
void CountRow(SectionTally& tally, const QString& status, int section, int questionNo);

// `part` of `whole` in percent, rounded half to even; 0 where `whole` is below 1. Raises 6.
[[nodiscard]] std::int16_t Percentage(std::int16_t part, std::int16_t whole);
[[nodiscard]] std::int16_t SectionScore(const SectionTally& tally);

// Counts the status rows of a table. With a mode other than tutorial and evaluation no row counts.
// The count stops where a sum leaves the 16-bit range and keeps what it has.
[[nodiscard]] SectionTally CountSectionStats(const Database& answers, const QString& table,
                                             int section, std::uint8_t mode);

}  // namespace tessaly

#endif  // TESSALY_STATS_SECTION_STATISTICS_H_
