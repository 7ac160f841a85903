#ifndef TESSALY_STATS_STATISTICS_REPORT_H_
#define TESSALY_STATS_STATISTICS_REPORT_H_

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "stats/section_statistics.h"

namespace tessaly {

class Workspace;
struct ProgramState;

// The report as it is printed, block by block; lines end in carriage return and line feed.
struct PrintBlocks {
  QString PrintTitle;
  QString PrintModeHeading;
  QString PrintSectionHeader;
  QString PrintSectionRows;
  QString PrintSubjectHeader;
  QString PrintSubjectRows;
};

// One bar of a chart: what it measures, in whole percent of what was asked.
struct ScoreFigure {
  QString Name;
  std::int16_t Asked = 0;
  std::int16_t Score = 0;  // percent
};

// The statistics of one study mode, taken when they are built and never refreshed.
struct StatisticsReport {
  QString Caption;    // names the mode
  QStringList Lines;  // for a fixed-pitch font; a blank entry is an empty text
  PrintBlocks Blocks;
  std::vector<ScoreFigure> Sections;  // all 24, in catalogue order
  std::vector<ScoreFigure> Subjects;  // those asked at least once, in stored order
};

inline constexpr int kSubjectNameColumns = 67;
inline constexpr int kHeadingIndent = 12;  // blanks before a heading
inline constexpr QLatin1StringView kSectionHeading{"Statistics by Exam Section"};
inline constexpr QLatin1StringView kSubjectHeading{"Statistics by Subject"};

// The row of an exam part; `year` has four digits, `part` eight characters. Numbers stand
// right-aligned.
[[nodiscard]] QString SectionRow(const QString& year, const QString& part,
                                 const SectionTally& tally);
// The row of a subject, its numbers left-aligned; none for a subject never asked. Raises 5 for a
// name longer than 67 characters.
[[nodiscard]] std::optional<QString> SubjectRow(const QString& name, std::int16_t asked,
                                                std::int16_t correct);

// Counts every exam part in the answers file for the study mode; the subjects are those in memory.
// Raises the failures of the store.
[[nodiscard]] StatisticsReport BuildStatisticsReport(const ProgramState& state,
                                                     Workspace& workspace);

}  // namespace tessaly

#endif  // TESSALY_STATS_STATISTICS_REPORT_H_
