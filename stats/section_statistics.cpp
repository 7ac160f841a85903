#include "stats/section_statistics.h"

#include "catalogue/study_selection.h"
#include "store/conversions.h"
#include "store/database.h"
#include "store/question_bank.h"
#include "store/runtime_error.h"

namespace tessaly {

namespace {

constexpr int kLastNumberWithPoints = 80;
constexpr int kPartFourSection = 3;

// Counts the row; false when a sum was full.
bool FitsTally(SectionTally& tally, const QString& status, int section, int questionNo) {
  try {
    CountRow(tally, status, section, questionNo);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace

std::int16_t QuestionWeight(int section, int questionNo) {
  if (section < 0 || section > kPartFourSection || questionNo > kLastNumberWithPoints) {
    return 0;
  }
  if (section == kPartFourSection) {
    return questionNo <= 40 ? 1 : 2;
  }
  if (questionNo <= 20) {
    return 1;
  }
  return questionNo <= 45 ? 2 : 3;
}

void CountRow(SectionTally& tally, const QString& status, int section, int questionNo) {
  const std::int16_t weight = QuestionWeight(section, questionNo);
  if (status != kUnanswered) {
    tally.Asked = CheckedAdd(tally.Asked, 1);
    tally.Possible = CheckedAdd(tally.Possible, weight);
  }
  if (status == kAnsweredCorrectly) {
    tally.Correct = CheckedAdd(tally.Correct, 1);
    tally.Actual = CheckedAdd(tally.Actual, weight);
  }
}

std::int16_t Percentage(std::int16_t part, std::int16_t whole) {
  if (whole < 1) {
    return 0;
  }
  return RoundToInteger(static_cast<double>(part) / whole * 100);
}

std::int16_t SectionScore(const SectionTally& tally) {
  return Percentage(tally.Actual, tally.Possible);
}

SectionTally CountSectionStats(const Database& answers, const QString& table, int section,
                               std::uint8_t mode) {
  SectionTally tally;
  if (mode != kTutorialMode && mode != kEvaluationMode) {
    return tally;
  }
  const QString statusField =
      mode == kTutorialMode ? status_field::kTutorialMode : status_field::kEvalMode;
  const QString numberField = status_field::kQuestionNo;
  std::int16_t row = 0;
  bool full = false;
  answers.ReadRows(table, {statusField, numberField}, [&](const std::vector<QVariant>& values) {
    row = CheckedAdd(row, 1);
    const std::int16_t questionNo = ToInteger(values[1], numberField);
    full = full || !FitsTally(tally, values[0].toString(), section, questionNo);
  });
  return tally;
}

}  // namespace tessaly
