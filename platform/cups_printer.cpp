#include "platform/cups_printer.h"

#include <QEventLoop>
#include <QProcess>
#include <QTextStream>
#include <QTimer>

#include "platform/pdf_document.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kPatienceMilliseconds = 60'000;

[[noreturn]] void Fail(const QString& reason) {
  throw RuntimeError(ErrorNumber::Printer, reason);
}

// False when the process had to be given up.
bool WaitForEnd(QProcess& process) {
  QEventLoop events;
  QObject::connect(&process, &QProcess::finished, &events, &QEventLoop::quit);
  QTimer::singleShot(kPatienceMilliseconds, &events, &QEventLoop::quit);
  if (process.state() != QProcess::NotRunning) {
    events.exec();
  }
  // The loop also ends when the program does: the job on its way is then waited for.
  return process.state() == QProcess::NotRunning || process.waitForFinished(kPatienceMilliseconds);
}

Paper PaperIn(const QByteArray& text) {
  QTextStream numbers(text);
  double width = 0;
  double height = 0;
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  numbers >> width >> height >> left >> top >> right >> bottom;
  if (numbers.status() != QTextStream::Ok) {
    Fail(u"The printer does not name its paper."_s);
  }
  return {QSizeF(width, height), QMarginsF(left, top, right, bottom)};
}

}  // namespace

CupsPrinter::CupsPrinter(const QString& programFolder)
    : program_(programFolder + u"/tessaly-print"_s) {}

std::unique_ptr<PrintDocument> CupsPrinter::BeginDocument(const QString& title) {
  return std::make_unique<PdfDocument>(
      title, DefaultPaper(), [this, title](const QByteArray& pdf) { PrintPdf(title, pdf); });
}

Paper CupsPrinter::DefaultPaper() {
  return PaperIn(Run({u"paper"_s}, {}));
}

void CupsPrinter::PrintPdf(const QString& title, const QByteArray& pdf) {
  Run({u"job"_s, title}, pdf);
}

QByteArray CupsPrinter::Run(const QStringList& arguments, const QByteArray& input) {
  QProcess process;
  process.start(program_, arguments);
  if (!process.waitForStarted()) {
    Fail(u"%1 cannot be started."_s.arg(program_));
  }
  process.write(input);
  process.closeWriteChannel();
  if (!WaitForEnd(process)) {
    process.kill();
    process.waitForFinished();
    Fail(u"The printing system does not answer."_s);
  }
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    const QString reason = QString::fromUtf8(process.readAllStandardError()).trimmed();
    Fail(reason.isEmpty() ? u"The printing system failed."_s : reason);
  }
  return process.readAllStandardOutput();
}

}  // namespace tessaly
