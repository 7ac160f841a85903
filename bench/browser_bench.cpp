// How long the reference browser takes to show a page, beside a bare web view showing the same one.
//
//   browser_bench BARE_WEB_VIEW PROGRAM_FOLDER FIRST_PAGE OTHER_PAGE   (pages within the folder)
//
// Prints "FIRST_MILLISECONDS LATER_MILLISECONDS BARE_MILLISECONDS": from the command to the page,
// with no process yet, with the window there, and from the bare program's start. Medians, the three
// taken in turn, so that a machine that gets slower slows all of them.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QThread>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "app/error_boundary.h"
#include "platform/message_boxes.h"
#include "reference/browser_process.h"

using namespace Qt::StringLiterals;

namespace tessaly {
namespace {

constexpr int kRounds = 9;
constexpr int kLaterPages = 4;

class NoBoxes : public MessageBoxes {
public:
  BoxAnswer Show(const QString& text, const QString&, BoxIcon, BoxButtons) override {
    qFatal("%s", qPrintable(text));
  }
};

class PageWaiter : public BrowserEvents {
public:
  void cmdPubList_Click() override {}
  void cmdClose_Click() override {}
  void timTimer_Timer(bool, const QString&) override {}
  void NavigateComplete(const QString&) override {}
  void DocumentComplete(const QString&, const QUrl&, int) override { loop_.quit(); }
  void WindowGone(bool) override { qFatal("the browser has ended"); }

  void Wait() { loop_.exec(); }

private:
  QEventLoop loop_;
};

double Milliseconds(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

double BareView(const QString& program, const QString& page) {
  QProcess process;
  QElapsedTimer timer;
  timer.start();
  process.start(program, {page});
  if (!process.waitForReadyRead()) {
    qFatal("%s shows nothing", qPrintable(program));
  }
  const double time = Milliseconds(timer);
  process.kill();
  process.waitForFinished();
  return time;
}

struct Figures {
  std::vector<double> first;
  std::vector<double> later;
  std::vector<double> bare;
};

void MeasureBrowser(const QString& folder, const QStringList& pages, Figures& figures) {
  NoBoxes boxes;
  ErrorBoundary errors(boxes);
  PageWaiter waiter;
  BrowserProcess window(folder + u'/' + kBrowserProgramName, errors);
  window.SetEvents(waiter);
  const auto open = [&](const QString& page) {
    window.Navigate(QUrl::fromLocalFile(folder + u'/' + page));
    window.Show();
    waiter.Wait();
  };
  QElapsedTimer timer;
  timer.start();
  window.Load();
  open(pages[0]);
  figures.first.push_back(Milliseconds(timer));
  for (int i = 1; i <= kLaterPages; ++i) {
    // As somebody would look at the page before.
    QThread::msleep(200);
    timer.start();
    open(pages[i % pages.size()]);
    figures.later.push_back(Milliseconds(timer));
  }
}

}  // namespace
}  // namespace tessaly

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 5) {
    std::fputs("usage: browser_bench BARE_WEB_VIEW PROGRAM_FOLDER FIRST_PAGE OTHER_PAGE\n", stderr);
    return 2;
  }
  tessaly::Figures figures;
  for (int i = 0; i < tessaly::kRounds; ++i) {
    figures.bare.push_back(tessaly::BareView(arguments[1], arguments[2] + u'/' + arguments[3]));
    tessaly::MeasureBrowser(arguments[2], arguments.mid(3), figures);
  }
  std::printf("%.1f %.1f %.1f\n", tessaly::Median(figures.first), tessaly::Median(figures.later),
              tessaly::Median(figures.bare));
  return 0;
}
