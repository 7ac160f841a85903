// Processor time and memory of a program that has come up and waits, read from the kernel.
//
//   start_bench PROGRAM SECONDS   (how long it may take to come up)
//
// Prints "PROCESSOR_MILLISECONDS PSS_KIB", the median of five starts, each with settings of its
// own.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStarts = 5;

QByteArray ReadProcFile(qint64 processId, const QString& name) {
  QFile file(u"/proc/%1/%2"_s.arg(processId).arg(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Time on a processor of every thread, which the kernel counts in nanoseconds.
double ProcessorMilliseconds(qint64 processId) {
  double nanoseconds = 0;
  const QDir threads(u"/proc/%1/task"_s.arg(processId));
  for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QByteArray counts = ReadProcFile(processId, u"task/%1/schedstat"_s.arg(thread));
    nanoseconds += counts.split(' ').value(0).toDouble();
  }
  return nanoseconds / 1e6;
}

double PssKib(qint64 processId) {
  for (const QByteArray& line : ReadProcFile(processId, u"smaps_rollup"_s).split('\n')) {
    if (line.startsWith("Pss:")) {
      return line.mid(4).trimmed().split(' ').value(0).toDouble();
    }
  }
  return 0;
}

// The notice about the application form would stand before the main window.
void DismissNotice(const QTemporaryDir& home) {
  QFile settings(home.filePath(u"Tessaly - 2002 Edition.ini"_s));
  if (!settings.open(QIODevice::WriteOnly) ||
      settings.write("[Options]\nSuppress2587Msg=1\n") < 0) {
    std::fputs("start_bench: the settings cannot be written\n", stderr);
  }
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) {
    std::fputs("usage: start_bench PROGRAM SECONDS\n", stderr);
    return 2;
  }
  // The working directory is another one while the program runs.
  const QString program = QFileInfo(arguments[1]).absoluteFilePath();
  std::vector<double> processor;
  std::vector<double> memory;
  for (int i = 0; i < kStarts; ++i) {
    const QTemporaryDir home;
    DismissNotice(home);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home.path());
    process.start(program, QStringList());
    if (!process.waitForStarted()) {
      std::fputs("start_bench: the program does not start\n", stderr);
      return 1;
    }
    QThread::sleep(static_cast<unsigned long>(arguments[2].toInt()));
    processor.push_back(ProcessorMilliseconds(process.processId()));
    memory.push_back(PssKib(process.processId()));
    process.kill();
    process.waitForFinished();
  }
  std::printf("%.1f %.0f\n", Median(processor), Median(memory));
  return 0;
}
