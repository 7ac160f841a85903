#ifndef TESSALY_APP_PROGRAM_STATE_H_
#define TESSALY_APP_PROGRAM_STATE_H_

#include <QString>
#include <cstdint>

#include "catalogue/study_selection.h"
#include "reference/browser_state.h"
#include "stats/subject_statistics.h"
#include "store/options.h"
#include "store/question_bank.h"

namespace tessaly {

// The stored study time of the selected section, as it was loaded.
struct SectionTime {
  QString Stored;         // whole seconds as decimal text; may be empty
  bool Exceeded = false;  // the section's three hours are used up
};

// The names under which the settings export keeps the counters of the subject that was chosen last;
// empty until the study selection is changed.
struct SubjectExportNames {
  QString Asked;
  QString Correct;
};

inline constexpr std::uint8_t kBackUp = 0;
inline constexpr std::uint8_t kRestore = 1;

// What the backup dialog does. The direction outlives the dialog: a restore leaves it set, and the
// next Back Up command sets it back only when its dialog has closed, so that this one restores too.
struct BackupState {
  std::uint8_t Direction = kBackUp;
  QString SelectedDrive;  // the path of its top folder; empty while there is no drive
};

// The record that all subsystems share. Made once by the program and handed by reference to
// whoever needs it.
struct ProgramState {
  StudySelection Selection;
  QString CurrentTableName;
  std::int16_t TablePosition = 1;  // of the next table when going over all of them, 1 to 25
  QString QuestionSubject;         // of the question on screen; empty when none is shown
  Options ProgramOptions;
  bool ResetReminders = false;  // dismissed reminders are to show again, with the next save
  SubjectStatistics Subjects;
  SubjectExportNames SubjectNames;
  SectionTime Time;
  BankPaths Paths;
  BackupState Backup;
  BrowserState Browser;
  QString ResearchLink;    // page of the last question that had one
  bool Answered = false;   // the question on screen has been graded
  bool TrueFalse = false;  // the question on screen is a True/False question
};

}  // namespace tessaly

#endif  // TESSALY_APP_PROGRAM_STATE_H_
