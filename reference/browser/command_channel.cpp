#include "reference/browser/command_channel.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace tessaly {

namespace {

// Moves the descriptor away from its well-known number and puts `replacement` there.
int TakeOver(int descriptor, int replacement) {
  const int taken = ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  ::dup2(replacement, descriptor);
  return taken;
}

}  // namespace

CommandChannel::CommandChannel() {
  // A program that is gone is noticed by the end of its commands.
  ::signal(SIGPIPE, SIG_IGN);
  const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  const int commands = TakeOver(STDIN_FILENO, nothing);
  const int reports = TakeOver(STDOUT_FILENO, STDERR_FILENO);
  ::close(nothing);
  ::fcntl(commands, F_SETFL, ::fcntl(commands, F_GETFL) | O_NONBLOCK);
  static_cast<void>(commands_.open(commands, QIODevice::ReadOnly | QIODevice::Unbuffered,
                                   QFileDevice::AutoCloseHandle));
  static_cast<void>(reports_.open(reports, QIODevice::WriteOnly | QIODevice::Unbuffered,
                                  QFileDevice::AutoCloseHandle));
}

void CommandChannel::Start() {
  notifier_ = std::make_unique<QSocketNotifier>(commands_.handle(), QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { ReadCommands(); });
}

void CommandChannel::Report(const QStringList& message) {
  reports_.write(EncodeMessage(message));
}

void CommandChannel::ReadCommands() {
  std::array<char, 4096> bytes{};
  const ssize_t count = ::read(commands_.handle(), bytes.data(), bytes.size());
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
    return;
  }
  if (count <= 0) {
    notifier_->setEnabled(false);
    Q_EMIT Closed();
    return;
  }
  for (const QStringList& message : reader_.Add(QByteArray(bytes.data(), count))) {
    Q_EMIT Commanded(message);
  }
}

}  // namespace tessaly
