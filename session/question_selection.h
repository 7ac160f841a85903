#ifndef TESSALY_SESSION_QUESTION_SELECTION_H_
#define TESSALY_SESSION_QUESTION_SELECTION_H_

#include <QLatin1StringView>
#include <QString>
#include <cstdint>
#include <optional>

namespace tessaly {

struct ProgramState;
struct SessionData;
class Workspace;

// The condition on status rows that a mode, method and question type ask for; none for a question
// type outside 0 to 2. By exam section, missed questions are those failed last in whichever mode;
// by subject, those missed in this mode.
[[nodiscard]] std::optional<QLatin1StringView> StatusFilter(std::uint8_t mode, std::uint8_t method,
                                                            std::int16_t questionType);

// Builds the set of questions that a session steps through, one question table at a time.
class QuestionSelection {
public:
  QuestionSelection(ProgramState& state, Workspace& workspace, SessionData& session);

  // Opens both files and the recordsets of the current table.
  void OpenTables();
  // By exam section: how many rows of the section the question type asks for.
  [[nodiscard]] qsizetype CountQuestionsToAsk();
  // Opens the session set for the study selection, in question-number order, and by subject the
  // set of the subject's question texts. By exam section, sets the empty-section flag.
  void BuildQuestionSet();
  // Moves on to the next table around the cycle; exam and section index follow it.
  void AdvanceQuestionTable();
  // Walks on until the current table has a question of the subject. False when the walk is over.
  [[nodiscard]] bool WalkToQuestionText();

private:
  [[nodiscard]] qsizetype CountStatusRows(const QString& filter);
  void OpenStatusTable();

  ProgramState& state_;
  Workspace& workspace_;
  SessionData& session_;
};

}  // namespace tessaly

#endif  // TESSALY_SESSION_QUESTION_SELECTION_H_
