#ifndef TESSALY_TESTS_END_TO_END_AGENT_UI_AGENT_H_
#define TESSALY_TESTS_END_TO_END_AGENT_UI_AGENT_H_

#include <QLocalServer>
#include <QObject>
#include <QStringList>
#include <functional>

class QLocalSocket;

namespace tessaly::test {

// Lets one driver outside the process see and use the program's windows. Requests are served by
// the program's own event loops, so that an answer also says that the program has come to rest.
class UiAgent : public QObject {
  Q_OBJECT

public:
  // `socketPath` of the local server that the driver connects to.
  UiAgent(const QString& socketPath, QObject* parent);

private:
  void AcceptDriver();
  void ReadRequests();
  void Serve(const QStringList& request);
  // Answers when the act is done, or as soon as a dialog that it opened waits for the user.
  void Act(const std::function<void()>& act);
  // Answers before the act, so that the program can be looked at while it is at work.
  void ActLater(const QStringList& request);
  void Answer(const QStringList& fields);

  QLocalServer server_;
  QLocalSocket* driver_ = nullptr;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_AGENT_UI_AGENT_H_
