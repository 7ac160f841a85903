#include "tests/end_to_end/agent_client.h"

#include <QDeadlineTimer>
#include <QThread>
#include <stdexcept>
#include <utility>

#include "tests/end_to_end/line_protocol.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

void Fail(const QString& message) {
  throw std::runtime_error(message.toStdString());
}

AgentClient::AgentClient(std::function<bool()> isRunning, std::function<QString()> errors)
    : isRunning_(std::move(isRunning)), errors_(std::move(errors)) {}

void AgentClient::Connect(const QString& socketPath) {
  const QDeadlineTimer deadline(kPatienceMilliseconds);
  do {
    socket_.connectToServer(socketPath);
    if (socket_.waitForConnected(kPatienceMilliseconds)) {
      return;
    }
    QThread::msleep(kPollMilliseconds);
  } while (isRunning_() && !deadline.hasExpired());
  Fail(u"the program does not answer; errors: "_s + errors_());
}

void AgentClient::Send(const QStringList& request) {
  socket_.write(EncodeLine(request));
  socket_.flush();
}

QStringList AgentClient::Ask(const QStringList& request) {
  Send(request);
  const QDeadlineTimer deadline(kPatienceMilliseconds);
  while (!socket_.canReadLine()) {
    if (socket_.state() != QLocalSocket::ConnectedState && socket_.bytesAvailable() == 0) {
      Fail(u"the program ended over \"%1\"; errors: %2"_s.arg(request.join(u' '), errors_()));
    }
    if (deadline.hasExpired()) {
      Fail(u"no answer to \"%1\"; errors: %2"_s.arg(request.join(u' '), errors_()));
    }
    socket_.waitForReadyRead(static_cast<int>(kPollMilliseconds));
  }
  const QStringList answer = DecodeLine(socket_.readLine());
  if (answer.first() != u"ok"_s) {
    Fail(u"\"%1\": %2"_s.arg(request.join(u' '), answer.mid(1).join(u' ')));
  }
  return answer.mid(1);
}

}  // namespace tessaly::test
