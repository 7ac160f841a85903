#include "platform/system_desktop.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFileInfo>
#include <QProcess>

#include "platform/clock.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kWatchMilliseconds = 5000;
constexpr int kPollMilliseconds = 50;

// The opener outlives this program, which a QProcess would not let it.
pid_t StartOpener(const QByteArray& link) {
  posix_spawn_file_actions_t streams;
  posix_spawn_file_actions_init(&streams);
  posix_spawn_file_actions_addopen(&streams, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&streams, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&streams, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  QByteArray program = "xdg-open";
  QByteArray argument = link;
  char* const arguments[] = {program.data(), argument.data(), nullptr};
  pid_t opener = -1;
  const int failure =
      posix_spawnp(&opener, program.constData(), &streams, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&streams);
  return failure == 0 ? opener : -1;
}

}  // namespace

bool SystemDesktop::OpenLink(const QString& link) {
  const pid_t opener = StartOpener(link.toUtf8());
  if (opener < 0) {
    return false;
  }
  for (int waited = 0; waited < kWatchMilliseconds; waited += kPollMilliseconds) {
    int status = 0;
    if (waitpid(opener, &status, WNOHANG) == opener) {
      return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    clock_.Wait(kPollMilliseconds);
  }
  return true;
}

bool SystemDesktop::StartProgram(const QString& path) {
  const QFileInfo program(path);
  return program.isFile() && program.isExecutable() &&
         QProcess::startDetached(path, {}, program.absolutePath());
}

}  // namespace tessaly
