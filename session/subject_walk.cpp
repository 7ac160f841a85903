#include "session/subject_walk.h"

#include "catalogue/exam_catalogue.h"
#include "catalogue/study_selection.h"
#include "store/conversions.h"

namespace tessaly {

void SubjectWalk::CountMove(const QString& table) {
  Steps = CheckedAdd(Steps, 1);
  Position = table == kTables.front() ? std::int16_t{1} : CheckedAdd(Position, 1);
  TablesSinceQuestion = CheckedAdd(TablesSinceQuestion, 1);
}

void SubjectWalk::ForceEnd() {
  Position = kCheckpoint;
  Steps = kLeastStepsToEnd;
}

bool SubjectWalk::WentAroundInVain() const {
  return TablesSinceQuestion >= kTableCount;
}

bool NothingLeftAtCheckpoint(std::int16_t questionType, std::int16_t skipped, std::int16_t answered,
                             std::int16_t answeredCorrectly) {
  return questionType == kUnansweredQuestions ? skipped == 0 : answered == answeredCorrectly;
}

}  // namespace tessaly
