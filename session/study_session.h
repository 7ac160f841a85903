#ifndef TESSALY_SESSION_STUDY_SESSION_H_
#define TESSALY_SESSION_STUDY_SESSION_H_

#include <QString>
#include <cstdint>

#include "session/answer_grading.h"
#include "session/question_display.h"
#include "session/question_selection.h"
#include "session/session_data.h"
#include "session/study_timer.h"

namespace tessaly {

class Clock;
class Compaction;
class MessageBoxes;
class ProgramSettings;
class StudySelector;

// A study session from begin to end: the commands that the main window runs.
//
// Two states, idle and running; within running, a question waits for its answer or, in Tutorial
// Mode, an answered question waits for Next. The files are open exactly while a session runs. A
// command that fails leaves a state that the user can go on from: a failed begin is idle again, a
// failed answer is not counted.
class StudySession {
public:
  struct Services {
    Workspace& workspace;
    SettingsStore& settings;
    Clock& clock;
    MessageBoxes& boxes;
    Compaction& compaction;
    ProgramSettings& programSettings;
    StudySelector& selector;
  };

  StudySession(ProgramState& state, const Services& services, MainWindowView& view);

  void BeginSession();
  void NextQuestion();
  void Skip();
  void EndSession();
  // `chosen` is 0 = A or True, 1 = B or False, 2 = C, 3 = D.
  void GradeAnswer(std::int16_t chosen);
  void TimerTick() { timer_.Tick(); }

  [[nodiscard]] bool IsRunning() const { return running_; }

private:
  void OpenSession();
  void BeginBySection();
  void BeginBySubject();
  void EnterRunning();
  void EnterIdle();

  void GoToNextQuestion();
  void NextBySection();
  void NextBySubject();
  void AwaitAnswer();
  void SkipBySection();
  void SkipBySubject();

  void ShowSubjectQuestion();
  void MoveToNextSubjectQuestion();
  void ShowSelectionUnlessResult();
  void CheckSubjectEnd();

  void WriteSubjectStatistics(SessionData& ended);
  void ReportEndOfSubject();

  ProgramState& state_;
  Services services_;
  MainWindowView& view_;
  SessionData data_;
  QuestionSelection selection_;
  QuestionDisplay display_;
  AnswerGrading grading_;
  StudyTimer timer_;
  bool running_ = false;
  // The selection panel shows what became of the question before; it stays there while the next
  // one is on the screen.
  bool panelShowsResult_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_SESSION_STUDY_SESSION_H_
