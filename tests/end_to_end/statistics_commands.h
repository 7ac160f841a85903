#ifndef TESSALY_TESTS_END_TO_END_STATISTICS_COMMANDS_H_
#define TESSALY_TESTS_END_TO_END_STATISTICS_COMMANDS_H_

#include <QString>

#include "tests/end_to_end/program_driver.h"

namespace tessaly::test {

// Puts this many questions into each of the 24 tables, all answered and counted.
void FillStatistics(TestBank& bank, int rowsATable);

// Makes every question answered, right in one study mode and wrong in the other, and every subject
// counted; `round`, up to 9,999, makes each row differ from those of other rounds. The program must
// not have the file open.
void AnswerEverything(TestBank& bank, int round);

// Stores a study time for every exam part in both study modes, and reads how many there are.
inline constexpr int kTimers = 48;
inline constexpr int kTimersAfterReset = 1;  // one is left, for good
void StoreTimers(const Installation& installation);
[[nodiscard]] int CountTimers(const Installation& installation);

// From the main window to the question whether everything is to be reset.
void AskToResetAll(ProgramDriver& program);

// From the main window to a backup dialog, "mnuFileExport" or "mnuFileImport", that has selected
// the drive mounted at `folder`. It fails when any other is selected.
void OpenBackupDialog(ProgramDriver& program, const QString& command, const QString& folder);
void WaitUntilClosed(ProgramDriver& program, const QString& window);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_STATISTICS_COMMANDS_H_
