#include "tests/end_to_end/answer_records.h"

#include <array>
#include <cstddef>

#include "catalogue/exam_catalogue.h"
#include "store/connection.h"
#include "store/question_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

template <typename Map>
int CountDifferingValues(const Map& expected, const Map& found) {
  int differing = 0;
  for (const auto& [key, value] : expected) {
    const auto other = found.find(key);
    if (other == found.end() || !(other->second == value)) {
      ++differing;
    }
  }
  return differing;
}

}  // namespace

void AnswerRecords::Add(const GivenAnswer& answer) {
  StatusRecord& row = questions[{answer.table, answer.questionNo}];
  SubjectRecord& subject = subjects[answer.subject];
  const QString status = answer.correct ? u"C"_s : u"I"_s;
  const int one = answer.correct ? 1 : 0;
  if (answer.evaluation) {
    row.evalMode = status;
    subject.evaluationAsked += 1;
    subject.evaluationCorrect += one;
  } else {
    row.tutorialMode = status;
    row.timesAsked += 1;
    subject.tutorialAsked += 1;
    subject.tutorialCorrect += one;
  }
  row.timesCorrect += one;
  row.passFail = answer.passFail;
}

void AnswerRecords::Reset(int step) {
  constexpr std::array kCodes{&StatusRecord::tutorialMode, &StatusRecord::evalMode,
                              &StatusRecord::passFail};
  const auto code = static_cast<std::size_t>(step / static_cast<int>(kTableCount));
  if (code < kCodes.size()) {
    const QString table = kTables[static_cast<std::size_t>(step % static_cast<int>(kTableCount))];
    for (auto& [key, row] : questions) {
      if (key.first == table) {
        row.*kCodes[code] = kUnanswered;
      }
    }
    return;
  }
  const bool evaluation = step == kResetSteps - 1;
  for (auto& [name, row] : subjects) {
    (evaluation ? row.evaluationAsked : row.tutorialAsked) = 0;
    (evaluation ? row.evaluationCorrect : row.tutorialCorrect) = 0;
  }
}

std::optional<int> ResetStepsBetween(AnswerRecords before, const AnswerRecords& after) {
  for (int steps = 0; steps <= kResetSteps; ++steps) {
    if (before == after) {
      return steps;
    }
    if (steps < kResetSteps) {
      before.Reset(steps);
    }
  }
  return std::nullopt;
}

AnswerRecords ReadAnswerRecords(const QString& answersPath) {
  AnswerRecords records;
  Connection file(answersPath, kPassword, Connection::Access::OpenExisting);
  for (const QLatin1StringView table : kTables) {
    Statement rows = file.Prepare(
        u"SELECT QuestionNo, TutorialMode, EvalMode, PassFail, TimesAsked, TimesCorrect FROM \"%1\""_s
            .arg(table));
    while (rows.Next()) {
      records.questions[{table, static_cast<int>(rows.ColumnNumber(0))}] = {
          rows.Column(1).toString(), rows.Column(2).toString(), rows.Column(3).toString(),
          rows.ColumnNumber(4), rows.ColumnNumber(5)};
    }
  }
  Statement subjects =
      file.Prepare(u"SELECT Subject, TMAsked, TMCorrect, EMAsked, EMCorrect FROM SubjectStats"_s);
  while (subjects.Next()) {
    records.subjects[subjects.Column(0).toString()] = {
        subjects.ColumnNumber(1), subjects.ColumnNumber(2), subjects.ColumnNumber(3),
        subjects.ColumnNumber(4)};
  }
  return records;
}

int CountDifferences(const AnswerRecords& expected, const AnswerRecords& found) {
  return CountDifferingValues(expected.questions, found.questions) +
         CountDifferingValues(expected.subjects, found.subjects);
}

}  // namespace tessaly::test
