#include "tests/support/child_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QProcess>
#include <QStandardPaths>
#include <array>

#include "store/connection.h"
#include "store/question_bank.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

constexpr auto kShell = "sqlcipher"_L1;

[[noreturn]] void RunChild(const ChildProcess::Work& work, int reportHandle) {
  try {
    work([reportHandle] {
      const char ready = '+';
      if (::write(reportHandle, &ready, 1) != 1) {
        ::_exit(1);
      }
      for (;;) {
        ::pause();
      }
    });
  } catch (const RuntimeError&) {
    // The parent sees the report's end instead of the mark.
  }
  ::_exit(1);
}

}  // namespace

ChildProcess::ChildProcess(const Work& work) {
  std::array<int, 2> report{};
  if (::pipe2(report.data(), O_CLOEXEC) != 0) {
    return;
  }
  pid_ = ::fork();
  if (pid_ == 0) {
    RunChild(work, report[1]);
  }
  ::close(report[1]);
  char mark = 0;
  standsStill_ = ::read(report[0], &mark, 1) == 1;
  ::close(report[0]);
}

ChildProcess::~ChildProcess() {
  Kill();
}

void ChildProcess::Kill() {
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
    pid_ = -1;
  }
}

QString AskShell(const QString& path, const QString& sql) {
  QProcess shell;
  shell.setProcessChannelMode(QProcess::MergedChannels);
  shell.start(kShell, {path});
  shell.write(u"PRAGMA key = '%1';\nPRAGMA kdf_iter = %2;\n%3;\n"_s.arg(kPassword)
                  .arg(kKeyStretchRounds)
                  .arg(sql)
                  .toUtf8());
  shell.closeWriteChannel();
  return shell.waitForFinished() ? QString::fromUtf8(shell.readAll()).trimmed()
                                 : shell.errorString();
}

bool IsShellInstalled() {
  return !QStandardPaths::findExecutable(kShell).isEmpty();
}

}  // namespace tessaly::test
