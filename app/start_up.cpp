#include "app/start_up.h"

#include "app/error_boundary.h"
#include "app/main_window.h"
#include "app/program.h"
#include "app/splash.h"
#include "platform/clock.h"
#include "platform/memory.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kSplashSeconds = 4;
constexpr int kSecondsADay = 86400;
constexpr int kPauseMilliseconds = 100;

// Past midnight the time of day starts over; the seconds since the start do not.
int SecondsSinceStart(QTime start, QTime now) {
  return (start.secsTo(now) + kSecondsADay) % kSecondsADay;
}

// The questions file is of no account before a session begins; one that cannot be read is reported
// there and not by a splash screen.
QString DatabaseReleaseIfReadable(Program& program) {
  try {
    return ReadTableVersion(program.Bank(), program.State().Paths);
  } catch (const RuntimeError&) {
    return {};
  }
}

void KeepSplashUp(Program& program, Clock& clock) {
  const QTime start = clock.Now().time();
  while (SecondsSinceStart(start, clock.Now().time()) < kSplashSeconds) {
    program.ShowStartUpState();
    clock.Sleep(kPauseMilliseconds);
  }
}

}  // namespace

bool StartUp(Program& program, frmMain& mainWindow, Clock& clock, ErrorBoundary& errors) {
  return errors.Run(u"starting"_s, [&] {
    program.Prepare();
    {
      frmSplash splash(program.State().Paths.ProgramFolder, DatabaseReleaseIfReadable(program));
      splash.ShowPainted();
      KeepSplashUp(program, clock);
    }
    mainWindow.Form_Load();
    program.Selector().RefreshStatus();
    mainWindow.show();
    ReturnFreedMemory();
  });
}

}  // namespace tessaly
