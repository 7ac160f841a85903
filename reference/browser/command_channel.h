#ifndef TESSALY_REFERENCE_BROWSER_COMMAND_CHANNEL_H_
#define TESSALY_REFERENCE_BROWSER_COMMAND_CHANNEL_H_

#include <QFile>
#include <QObject>
#include <QSocketNotifier>
#include <QStringList>
#include <memory>

#include "reference/browser_protocol.h"

namespace tessaly {

// The way to the program that started this process: its standard input and output, taken over so
// that no process of the web engine inherits them and nothing else is printed into them.
class CommandChannel : public QObject {
  Q_OBJECT

public:
  // Before the web engine starts any process.
  CommandChannel();

  // Commands are read from here on; once there is an event loop.
  void Start();
  void Report(const QStringList& message);

Q_SIGNALS:
  void Commanded(const QStringList& message);
  // The program has closed the channel, or is gone.
  void Closed();

private:
  void ReadCommands();

  QFile commands_;
  QFile reports_;
  MessageReader reader_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_COMMAND_CHANNEL_H_
