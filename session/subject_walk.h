#ifndef TESSALY_SESSION_SUBJECT_WALK_H_
#define TESSALY_SESSION_SUBJECT_WALK_H_

#include <QString>
#include <cstdint>

namespace tessaly {

// The walk of study by subject over the 24 question tables, around and around in catalogue order.
// It may end only at a checkpoint, the position 20, which is not the number of tables: the position
// counts moves and starts over at 1 each time the walk passes from the first table to the second.
struct SubjectWalk {
  static constexpr std::int16_t kCheckpoint = 20;
  static constexpr std::int16_t kLeastStepsToEnd = 2;

  std::int16_t Position = 0;
  std::int16_t Steps = 0;                // moves since the session began
  std::int16_t Skipped = 0;              // questions skipped since the last checkpoint
  std::int16_t TablesSinceQuestion = 0;  // moves since a question was shown

  // Counts the move away from `table`. Raises 6 when the steps leave the 16-bit range.
  void CountMove(const QString& table);
  void CountQuestionShown() { TablesSinceQuestion = 0; }
  // Makes the session's end check true.
  void ForceEnd();

  [[nodiscard]] bool AtCheckpoint() const { return Position == kCheckpoint; }
  // True when the session is to end.
  [[nodiscard]] bool HasEnded() const { return AtCheckpoint() && Steps >= kLeastStepsToEnd; }
  // True when every table was visited once and none had a question to show.
  [[nodiscard]] bool WentAroundInVain() const;
};

// Whether a walk that stands at the checkpoint without a question is over: nothing was skipped
// (unanswered questions), or nothing was answered incorrectly (the other types).
[[nodiscard]] bool NothingLeftAtCheckpoint(std::int16_t questionType, std::int16_t skipped,
                                           std::int16_t answered, std::int16_t answeredCorrectly);

}  // namespace tessaly

#endif  // TESSALY_SESSION_SUBJECT_WALK_H_
