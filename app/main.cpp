#include <QApplication>
#include <QIcon>

#include "app/error_boundary.h"
#include "app/main_window.h"
#include "app/program.h"
#include "app/start_up.h"
#include "platform/clock.h"
#include "platform/cups_printer.h"
#include "platform/drives.h"
#include "platform/file_operations.h"
#include "platform/instance_lock.h"
#include "platform/qt_message_boxes.h"
#include "platform/system_desktop.h"
#include "reference/browser_process.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kFailed = 1;

int RunProgram(tessaly::MessageBoxes& boxes, tessaly::ErrorBoundary& errors) {
  int exitCode = kFailed;
  errors.Run(u"starting"_s, [&] {
    tessaly::IniSettingsStore settings(tessaly::IniSettingsStore::DefaultPath());
    tessaly::SystemClock clock;
    tessaly::DiskFileOperations files;
    tessaly::SystemDrives drives;
    tessaly::SystemDesktop desktop(clock);
    tessaly::CupsPrinter printer(QApplication::applicationDirPath());
    tessaly::BrowserProcess browserWindow(
        QApplication::applicationDirPath() + u'/' + tessaly::kBrowserProgramName, errors);
    tessaly::frmMain mainWindow(boxes);
    tessaly::Program program(
        {settings, clock, boxes, files, drives, printer, desktop, browserWindow},
        QApplication::applicationDirPath(), mainWindow);
    mainWindow.Attach(program);
    if (tessaly::StartUp(program, mainWindow, clock, errors)) {
      exitCode = QApplication::exec();
    }
  });
  return exitCode;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"tessaly"_s);
  QApplication::setDesktopFileName(u"tessaly"_s);
  QApplication::setWindowIcon(QIcon(u":/pictures/tessaly.png"_s));
  tessaly::QtMessageBoxes boxes;
  const tessaly::InstanceLock lock(tessaly::InstanceLock::DefaultPath());
  if (lock.IsHeldByAnother()) {
    static_cast<void>(boxes.Show(u"Tessaly is already running!"_s, tessaly::kApplicationTitle,
                                 tessaly::BoxIcon::Exclamation, tessaly::BoxButtons::Ok));
    return 0;
  }
  tessaly::ErrorBoundary errors(boxes);
  return RunProgram(boxes, errors);
}
