#ifndef TESSALY_APP_START_UP_H_
#define TESSALY_APP_START_UP_H_

namespace tessaly {

class Clock;
class ErrorBoundary;
class Program;
class frmMain;

// Brings the program up: settings, statistics, the splash screen for four seconds, the main window
// at its place, and over it, one after the other until they are closed, the notice about Form 2587
// when it is due and the tip of the day when the user wants it. False when there is no main window
// because something failed; the user has been told.
[[nodiscard]] bool StartUp(Program& program, frmMain& mainWindow, Clock& clock,
                           ErrorBoundary& errors);

}  // namespace tessaly

#endif  // TESSALY_APP_START_UP_H_
