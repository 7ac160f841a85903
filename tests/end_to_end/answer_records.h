#ifndef TESSALY_TESTS_END_TO_END_ANSWER_RECORDS_H_
#define TESSALY_TESTS_END_TO_END_ANSWER_RECORDS_H_

#include <QString>
#include <map>
#include <optional>
#include <utility>

namespace tessaly::test {

struct StatusRecord {
  QString tutorialMode;
  QString evalMode;
  QString passFail;
  qlonglong timesAsked = 0;
  qlonglong timesCorrect = 0;

  bool operator==(const StatusRecord&) const = default;
};

struct SubjectRecord {
  qlonglong tutorialAsked = 0;
  qlonglong tutorialCorrect = 0;
  qlonglong evaluationAsked = 0;
  qlonglong evaluationCorrect = 0;

  bool operator==(const SubjectRecord&) const = default;
};

// An answer as it stood on the screen.
struct GivenAnswer {
  QString table;
  int questionNo = 0;
  QString subject;
  bool evaluation = false;
  bool correct = false;
  QString passFail;  // the code that its row gets
};

// Everything that the answers file holds about the answers given so far.
struct AnswerRecords {
  std::map<std::pair<QString, int>, StatusRecord> questions;  // by table and number
  std::map<QString, SubjectRecord> subjects;                  // by name

  bool operator==(const AnswerRecords&) const = default;

  // Counts an answer as the program has to.
  void Add(const GivenAnswer& answer);
  // Makes one of the changes of a reset of all statistics, 0 to kResetSteps - 1 in its order, each
  // of which is on the disk whole or not at all: one status code in one table, or one study mode's
  // counts of all subjects.
  void Reset(int step);
};

inline constexpr int kResetSteps = 3 * 24 + 2;

// How many of a reset's changes turn one into the other; none if no number of them does.
[[nodiscard]] std::optional<int> ResetStepsBetween(AnswerRecords before,
                                                   const AnswerRecords& after);

// Raises the failures of opening and reading the file.
[[nodiscard]] AnswerRecords ReadAnswerRecords(const QString& answersPath);

// How many rows and subjects differ.
[[nodiscard]] int CountDifferences(const AnswerRecords& expected, const AnswerRecords& found);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_ANSWER_RECORDS_H_
