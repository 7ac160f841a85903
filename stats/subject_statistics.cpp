#include "stats/subject_statistics.h"

#include <algorithm>
#include <cstddef>

#include "store/database.h"
#include "store/question_bank.h"

namespace tessaly {

SubjectColumns ColumnsOfMode(std::uint8_t mode) {
  return mode == kTutorialMode ? SubjectColumns{subject_field::kTMAsked, subject_field::kTMCorrect}
                               : SubjectColumns{subject_field::kEMAsked, subject_field::kEMCorrect};
}

void LoadSubjectStats(Workspace& workspace, const BankPaths& paths, std::uint8_t mode,
                      SubjectStatistics& subjects) {
  const SubjectColumns columns = ColumnsOfMode(mode);
  Recordset rows =
      workspace.OpenDatabase(paths.AnswersDbPath, paths.DbConnect).OpenTable(kSubjectStatsTable);
  SubjectStatistics loaded = subjects;
  rows.MoveFirst();
  for (std::size_t i = 0; i < kSubjectCount; ++i) {
    loaded.SubjectName[i] = rows.Text(subject_field::kSubject);
    loaded.SubjectAsked[i] = rows.Integer(columns.asked);
    loaded.SubjectCorrect[i] = rows.Integer(columns.correct);
    rows.MoveNext();
  }
  subjects = loaded;
}

void WriteSubjectTotals(Recordset& subjectStats, const SubjectColumns& columns, std::int16_t asked,
                        std::int16_t correct) {
  subjectStats.Edit();
  subjectStats.SetValue(columns.asked, asked);
  subjectStats.SetValue(columns.correct, correct);
  subjectStats.Update();
}

std::int16_t FindSubject(const SubjectStatistics& subjects, const QString& subject) {
  const auto last = subjects.SubjectName.begin() + kSubjectCount;
  const auto found = std::find(subjects.SubjectName.begin(), last, subject);
  return static_cast<std::int16_t>(found - subjects.SubjectName.begin());
}

}  // namespace tessaly
