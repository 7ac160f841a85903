// tessaly-print: the program's way to the printing service.
//
//   tessaly-print paper        prints the default printer's paper: width, height and the margins
//                              left, top, right, bottom, in points
//   tessaly-print job TITLE    prints the PDF that comes on the standard input
//
// What fails is said on the standard error, and the exit code is 1.

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <QThread>

#include "platform/cups/cups_queue.h"

using namespace Qt::StringLiterals;

namespace {

using tessaly::CupsQueue;

// A queue that takes a job does not yet print it: what goes wrong at once is worth waiting for. A
// job that takes longer is the queue's.
constexpr int kWatchMilliseconds = 3000;
constexpr int kPollMilliseconds = 100;

void PrintPaper() {
  const CupsQueue queue;
  queue.RequireReady();
  const tessaly::Paper paper = queue.DefaultPaper();
  QTextStream(stdout) << paper.Size.width() << ' ' << paper.Size.height() << ' '
                      << paper.Margins.left() << ' ' << paper.Margins.top() << ' '
                      << paper.Margins.right() << ' ' << paper.Margins.bottom() << '\n';
}

void PrintJob(const QString& title) {
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly)) {
    throw tessaly::PrintFailure(u"There is nothing to print."_s);
  }
  CupsQueue queue;
  const int job = queue.Submit(title, input.readAll());
  for (int waited = 0; !queue.IsDone(job); waited += kPollMilliseconds) {
    if (waited >= kWatchMilliseconds) {
      // A queue that a failed job has stopped keeps the job and says nothing of it.
      CupsQueue().RequireReady();
      return;
    }
    QThread::msleep(kPollMilliseconds);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  try {
    if (arguments.size() == 2 && arguments[1] == u"paper"_s) {
      PrintPaper();
      return 0;
    }
    if (arguments.size() == 3 && arguments[1] == u"job"_s) {
      PrintJob(arguments[2]);
      return 0;
    }
    QTextStream(stderr) << "usage: tessaly-print paper | job TITLE\n";
  } catch (const tessaly::PrintFailure& failure) {
    QTextStream(stderr) << failure.what() << '\n';
  }
  return 1;
}
