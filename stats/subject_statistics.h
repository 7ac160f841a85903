#ifndef TESSALY_STATS_SUBJECT_STATISTICS_H_
#define TESSALY_STATS_SUBJECT_STATISTICS_H_

#include <QString>
#include <array>
#include <cstdint>

#include "catalogue/study_selection.h"

namespace tessaly {

class Workspace;
class Recordset;
struct BankPaths;

inline constexpr std::int16_t kSubjectCount = 87;
// The bucket for a subject text that matches none; its counts are never written.
inline constexpr std::int16_t kUnknownSubject = 87;

// The subjects' names and totals of the current study mode, in the stored order of "SubjectStats".
struct SubjectStatistics {
  std::array<QString, kSubjectCount + 1> SubjectName;
  std::array<std::int16_t, kSubjectCount + 1> SubjectAsked{};
  std::array<std::int16_t, kSubjectCount + 1> SubjectCorrect{};
  std::int16_t SubjectIndex = 0;  // of the subject being studied, 0 to 87
};

// The names of a mode's two columns of "SubjectStats".
struct SubjectColumns {
  QString asked;
  QString correct;
};
[[nodiscard]] SubjectColumns ColumnsOfMode(std::uint8_t mode);

// Fills names and totals from the first 87 rows of "SubjectStats". Raises the failures of the
// store, 3021 when the table has fewer rows, and then leaves `subjects` as they were.
void LoadSubjectStats(Workspace& workspace, const BankPaths& paths, std::uint8_t mode,
                      SubjectStatistics& subjects);

// Writes the totals of subject `index` into the current row of "SubjectStats".
void WriteSubjectTotals(Recordset& subjectStats, const SubjectColumns& columns, std::int16_t asked,
                        std::int16_t correct);

// The index of a subject text, or kUnknownSubject.
[[nodiscard]] std::int16_t FindSubject(const SubjectStatistics& subjects, const QString& subject);

}  // namespace tessaly

#endif  // TESSALY_STATS_SUBJECT_STATISTICS_H_
