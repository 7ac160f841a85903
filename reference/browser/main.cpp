// The reference browser's window as a process of its own, started by the program when a page is to
// be shown. Its only way in and out are the pipes that it is started with.

#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "app/picture.h"
#include "reference/browser/browser_form.h"
#include "reference/browser/command_channel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kNoSandbox = "QTWEBENGINE_DISABLE_SANDBOX";

// Whatever the environment says, the sandbox is on where it can be, and nobody else gets a way in.
void PrepareWebEngine() {
  qunsetenv("QTWEBENGINE_CHROMIUM_FLAGS");
  qunsetenv("QTWEBENGINE_REMOTE_DEBUGGING");
  const bool isRoot = ::geteuid() == 0;
  if (isRoot) {
    qputenv(kNoSandbox, "1");
  } else {
    qunsetenv(kNoSandbox);
  }
  QLoggingCategory::setFilterRules(u"qt.webenginecontext=false"_s);
  // The pages are text. Without a graphics processor they come up sooner, and everywhere.
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

}  // namespace

int main(int argc, char* argv[]) {
  // Should this process hang, it still goes with the program.
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  tessaly::CommandChannel channel;
  PrepareWebEngine();
  // Arguments would reach the web engine.
  argc = 1;
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"tessaly-browser"_s);
  QApplication::setDesktopFileName(u"tessaly"_s);
  // The end comes with that of the channel only.
  QApplication::setQuitOnLastWindowClosed(false);
  tessaly::RegisterPictures();
  QApplication::setWindowIcon(QIcon(u":/pictures/tessaly.png"_s));
  tessaly::frmBrowser browser(QApplication::applicationDirPath(), channel);
  QObject::connect(&channel, &tessaly::CommandChannel::Commanded, &browser,
                   &tessaly::frmBrowser::Obey);
  QObject::connect(&channel, &tessaly::CommandChannel::Closed, &application,
                   [] { QApplication::exit(); });
  QObject::connect(
      &browser, &tessaly::frmBrowser::PageLost, &application,
      [] { QApplication::exit(tessaly::kPageLostExitCode); }, Qt::QueuedConnection);
  channel.Start();
  return QApplication::exec();
}
