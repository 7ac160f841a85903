#ifndef TESSALY_APP_START_UP_H_
#define TESSALY_APP_START_UP_H_

namespace tessaly {

class Clock;
class ErrorBoundary;
class Program;
class frmMain;

// Brings the program up: settings, statistics, the splash screen for four seconds, then the main
// window at its place. False when something failed; the user has been told.
[[nodiscard]] bool StartUp(Program& program, frmMain& mainWindow, Clock& clock,
                           ErrorBoundary& errors);

}  // namespace tessaly

#endif  // TESSALY_APP_START_UP_H_
