#ifndef TESSALY_SESSION_QUESTION_PRINTING_H_
#define TESSALY_SESSION_QUESTION_PRINTING_H_

#include <QString>

namespace tessaly {

class Clock;
class MainWindowView;
class Printer;
struct ProgramState;

// A question as it goes to the printer. Taken before printing begins, because the user can go on to
// another question meanwhile.
struct PrintedQuestion {
  QString Exam;  // print caption
  QString Part;  // print caption; empty for a section that is none
  QString Number;
  QString Question;
  QString Explanation;
  QString Hint;
  QString Answer;  // "A" to "D", "True" or "False"
};

// The question on screen.
[[nodiscard]] PrintedQuestion QuestionOnScreen(const ProgramState& state,
                                               const MainWindowView& view);
// What the progress form says meanwhile; also the title of the print job.
[[nodiscard]] QString PrintingText(const PrintedQuestion& question);

// Prints the question on one page, its blocks at fixed heights, so that the answer at the foot can
// be folded away. Takes 1.5 seconds or more, in which events are handled. Raises 482.
void PrintQuestion(const PrintedQuestion& question, Printer& printer, Clock& clock);

}  // namespace tessaly

#endif  // TESSALY_SESSION_QUESTION_PRINTING_H_
