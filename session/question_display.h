#ifndef TESSALY_SESSION_QUESTION_DISPLAY_H_
#define TESSALY_SESSION_QUESTION_DISPLAY_H_

#include <cstdint>

namespace tessaly {

class MainWindowView;
class QuestionSelection;
struct ProgramState;
struct SessionData;

// Whether a question has the two answers True and False: in sections 0 to 2 up to number 20, in
// section 3 up to number 40.
[[nodiscard]] bool IsTrueFalseQuestion(int section, int questionNo);

// Puts questions on the main window.
class QuestionDisplay {
public:
  enum class SubjectQuestion {
    Shown,
    WalkOver,         // no table has a question of the subject left
    NotInSessionSet,  // the question found is not one that this session asks
  };

  QuestionDisplay(ProgramState& state, SessionData& session, QuestionSelection& selection,
                  MainWindowView& view);

  // By exam section: shows the session set's current row, rebuilding the set when it is at its
  // end. False when the section has nothing left to ask, and then shows nothing.
  [[nodiscard]] bool ShowQuestion();
  // By subject: finds the subject's next question across the tables and shows it.
  [[nodiscard]] SubjectQuestion LoadSubjectData();

  // Shows the answer buttons that the question needs; nothing changes at the session set's end.
  void ShowButtons();
  void HideButtons();
  // Sets SubjectIndex and the running totals for the study selection's subject text. A text that
  // matches none gets the index 87 and leaves the totals.
  void FindSubjectNumber();

private:
  void FillBoxes(std::int16_t questionNo);

  ProgramState& state_;
  SessionData& session_;
  QuestionSelection& selection_;
  MainWindowView& view_;
};

}  // namespace tessaly

#endif  // TESSALY_SESSION_QUESTION_DISPLAY_H_
