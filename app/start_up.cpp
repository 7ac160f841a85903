#include "app/start_up.h"

#include "app/error_boundary.h"
#include "app/main_window.h"
#include "app/program.h"
#include "app/splash.h"
#include "platform/clock.h"
#include "platform/memory.h"
#include "reference/form_2587_notice.h"
#include "reference/tip_form.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kSplashMilliseconds = 4000;
constexpr int kMillisecondsADay = 86'400'000;
constexpr int kPauseMilliseconds = 100;

// Past midnight the time of day starts over; the time since the start does not.
int MillisecondsSinceStart(QTime start, QTime now) {
  return (start.msecsTo(now) + kMillisecondsADay) % kMillisecondsADay;
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
  while (MillisecondsSinceStart(start, clock.Now().time()) < kSplashMilliseconds) {
    program.ShowStartUpState();
    clock.Sleep(kPauseMilliseconds);
  }
}

// The program can be used all the same when one of the two notices fails.
void ShowForm2587Notice(Program& program, frmMain& mainWindow, ErrorBoundary& errors) {
  errors.Run(u"showing the notice about Form 2587"_s, [&] {
    if (IsForm2587NoticeWanted(program)) {
      frmForm2587 notice(program, errors, &mainWindow);
      notice.exec();
    }
  });
}

void ShowTipOfTheDay(Program& program, frmMain& mainWindow, ErrorBoundary& errors) {
  if (program.State().ProgramOptions.TipofDay != 1) {
    return;
  }
  errors.Run(u"showing the tip of the day"_s, [&] {
    frmTip tip(program, errors, &mainWindow);
    tip.LoadAndShow(TipOccasion::Start);
  });
}

bool ShowMainWindow(Program& program, frmMain& mainWindow, Clock& clock, ErrorBoundary& errors) {
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

}  // namespace

bool StartUp(Program& program, frmMain& mainWindow, Clock& clock, ErrorBoundary& errors) {
  if (!ShowMainWindow(program, mainWindow, clock, errors)) {
    return false;
  }
  ShowForm2587Notice(program, mainWindow, errors);
  ShowTipOfTheDay(program, mainWindow, errors);
  return true;
}

}  // namespace tessaly
