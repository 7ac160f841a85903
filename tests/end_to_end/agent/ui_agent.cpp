#include "tests/end_to_end/agent/ui_agent.h"

#include <QApplication>
#include <QLocalSocket>
#include <QTimer>

#include "tests/end_to_end/agent/window_commands.h"
#include "tests/end_to_end/line_protocol.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

UiAgent::UiAgent(const QString& socketPath, QObject* parent) : QObject(parent) {
  connect(&server_, &QLocalServer::newConnection, this, &UiAgent::AcceptDriver);
  if (!server_.listen(socketPath)) {
    qFatal("The agent cannot listen on %s", qPrintable(socketPath));
  }
}

void UiAgent::AcceptDriver() {
  driver_ = server_.nextPendingConnection();
  connect(driver_, &QLocalSocket::readyRead, this, &UiAgent::ReadRequests);
  ReadRequests();
}

void UiAgent::ReadRequests() {
  while (driver_->canReadLine()) {
    const QStringList request = DecodeLine(driver_->readLine());
    // Away from the socket's own call, which would not come again while a dialog is open in it.
    QTimer::singleShot(0, this, [this, request] { Serve(request); });
  }
}

void UiAgent::Serve(const QStringList& request) {
  const QString& command = request.first();
  const QStringList arguments = request.mid(1);
  try {
    if (const ReadCommand read = FindReadCommand(command)) {
      Answer(QStringList{u"ok"_s} + read(arguments));
    } else if (const ActCommand act = FindActCommand(command)) {
      Act([act, arguments] { act(arguments); });
    } else if (command == "later"_L1) {
      ActLater(arguments);
    } else {
      throw Refusal("no such command: " + command.toStdString());
    }
  } catch (const Refusal& refusal) {
    Answer({u"error"_s, QString::fromUtf8(refusal.what())});
  }
}

void UiAgent::Act(const std::function<void()>& act) {
  constexpr int kLookEveryMilliseconds = 2;
  const QWidget* dialogBefore = QApplication::activeModalWidget();
  bool answered = false;
  const auto answerOnce = [this, &answered] {
    if (!answered) {
      answered = true;
      Answer({u"ok"_s});
    }
  };
  QTimer watch;
  connect(&watch, &QTimer::timeout, this, [&] {
    if (QApplication::activeModalWidget() != dialogBefore) {
      watch.stop();
      answerOnce();
    }
  });
  watch.start(kLookEveryMilliseconds);
  act();
  answerOnce();
}

// What cannot be done then ends the program, which the driver tells with its errors.
void UiAgent::ActLater(const QStringList& request) {
  const ActCommand act = FindActCommand(request.value(0));
  if (act == nullptr) {
    throw Refusal("no such act: " + request.value(0).toStdString());
  }
  Answer({u"ok"_s});
  QTimer::singleShot(0, this, [act, arguments = request.mid(1)] {
    try {
      act(arguments);
    } catch (const Refusal& refusal) {
      qFatal("%s", refusal.what());
    }
  });
}

void UiAgent::Answer(const QStringList& fields) {
  driver_->write(EncodeLine(fields));
  driver_->flush();
}

}  // namespace tessaly::test
