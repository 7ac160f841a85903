#ifndef TESSALY_SESSION_SESSION_COMMANDS_H_
#define TESSALY_SESSION_SESSION_COMMANDS_H_

namespace tessaly {

class MainWindowView;

// Which commands of the main window can be used in the program's two states. Each procedure sets
// those whose state it decides and leaves the others.

// A session runs: what would change the selection, the statistics or the files is off.
void EnableRunningCommands(MainWindowView& view);
// No session runs: what needs a question is off, everything else is on.
void EnableIdleCommands(MainWindowView& view);
// While the program starts: what needs a question is off.
void DisableSessionCommands(MainWindowView& view);

}  // namespace tessaly

#endif  // TESSALY_SESSION_SESSION_COMMANDS_H_
