#ifndef TESSALY_SESSION_GRADING_H_
#define TESSALY_SESSION_GRADING_H_

#include <QLatin1StringView>
#include <QString>
#include <cstdint>
#include <optional>

#include "session/session_data.h"

namespace tessaly {

// How an answer counts, as functions of values alone: nothing here reads or writes a file, a box or
// a clock.

struct AnswerToGrade {
  std::uint8_t Mode = 0;
  std::int16_t Chosen = 0;        // 0 = A or True, 1 = B or False, 2 = C, 3 = D
  std::int16_t AnswerNumber = 0;  // the right one, numbered alike
  bool WasUnanswered = false;     // TutorialMode was "U"
  std::int16_t TimesAsked = 0;
  std::int16_t TimesCorrect = 0;
  QString PassFailBox;  // what the pass/fail box still shows
};

// What the answer's status row becomes. A count that is missing stays as it is.
struct StatusChange {
  QLatin1StringView StatusField;
  QLatin1StringView Status;
  std::optional<std::int16_t> TimesAsked;
  std::optional<std::int16_t> TimesCorrect;
  QLatin1StringView PassFail;
};

[[nodiscard]] bool IsCorrect(const AnswerToGrade& answer);

// Tutorial Mode counts every answer in the row. Evaluation Mode never counts TimesAsked, and a
// correct answer keeps an "F" that the pass/fail box still shows from an earlier one. Raises 6
// where a count would leave the 16-bit range.
[[nodiscard]] StatusChange GradeRow(const AnswerToGrade& answer);

// The session's counters, and the subject's totals, after the answer. Raise 6.
[[nodiscard]] SessionCounters CountAnswer(const SessionCounters& counters,
                                          const AnswerToGrade& answer);
[[nodiscard]] RunningTotals CountForSubject(const RunningTotals& totals, bool correct);

}  // namespace tessaly

#endif  // TESSALY_SESSION_GRADING_H_
