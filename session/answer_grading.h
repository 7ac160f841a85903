#ifndef TESSALY_SESSION_ANSWER_GRADING_H_
#define TESSALY_SESSION_ANSWER_GRADING_H_

#include <QString>
#include <cstdint>

namespace tessaly {

class MainWindowView;
struct AnswerToGrade;
struct ProgramState;
struct SessionData;
struct StatusChange;

// Grades the question on screen: counts the answer, writes its status row and its subject's totals
// in one transaction, and only then shows the verdict. When anything fails nothing has changed, on
// the disk, in memory or on screen.
class AnswerGrading {
public:
  AnswerGrading(ProgramState& state, SessionData& session, MainWindowView& view);

  // `chosen` is 0 to 3. Raises the failures of the store, 6 where a counter overflows, 9 for a
  // subject index outside the arrays, 3021 when the session stands on another question than the
  // one on screen.
  void GradeAnswer(std::int16_t chosen);

  // Name of the answer chosen last, for printing.
  [[nodiscard]] const QString& ChosenName() const { return chosenName_; }
  // Whether the last answer was wrong.
  [[nodiscard]] bool AnsweredIncorrectly() const { return answeredIncorrectly_; }

private:
  [[nodiscard]] AnswerToGrade ReadAnswer(std::int16_t chosen) const;
  void WriteAnswer(const StatusChange& change, std::int16_t asked, std::int16_t correct);
  void ShowTutorialVerdict(const AnswerToGrade& answer, std::int16_t questionNo);

  ProgramState& state_;
  SessionData& session_;
  MainWindowView& view_;
  QString chosenName_;
  bool answeredIncorrectly_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_SESSION_ANSWER_GRADING_H_
