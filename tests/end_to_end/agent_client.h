#ifndef TESSALY_TESTS_END_TO_END_AGENT_CLIENT_H_
#define TESSALY_TESTS_END_TO_END_AGENT_CLIENT_H_

#include <QLocalSocket>
#include <QString>
#include <QStringList>
#include <functional>

namespace tessaly::test {

// How long a program may take to answer or to come to something.
inline constexpr int kPatienceMilliseconds = 30'000;
inline constexpr unsigned long kPollMilliseconds = 5;

[[noreturn]] void Fail(const QString& message);

// Talks to the agent within a program. Failures raise std::runtime_error.
class AgentClient {
public:
  // Whether the program runs, and what it has to say when it does not answer.
  AgentClient(std::function<bool()> isRunning, std::function<QString()> errors);

  // Waits for an agent that is not listening yet.
  void Connect(const QString& socketPath);
  void Disconnect() { socket_.abort(); }
  // Does not wait for the answer.
  void Send(const QStringList& request);
  QStringList Ask(const QStringList& request);

private:
  std::function<bool()> isRunning_;
  std::function<QString()> errors_;
  QLocalSocket socket_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_AGENT_CLIENT_H_
