#ifndef TESSALY_TESTS_END_TO_END_LOOPBACK_SERVER_H_
#define TESSALY_TESTS_END_TO_END_LOOPBACK_SERVER_H_

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

class QTcpSocket;

namespace tessaly::test {

// A web server on this machine's loopback address, served by this thread's event loop. Remembers
// who came.
class LoopbackServer : public QObject {
  Q_OBJECT

public:
  LoopbackServer();

  // Every other path is not found.
  void Serve(const QString& path, const QByteArray& contentType, const QByteArray& content);
  [[nodiscard]] QString Address(const QString& path) const;
  // Whoever asks for this path waits for ever.
  void Ignore(const QString& path) { ignored_.append(path); }
  // Takes no more visitors.
  void Close() { server_.close(); }
  // Connections that were made, whatever was asked through them.
  [[nodiscard]] int Connections() const { return connections_; }
  // Paths that were asked for.
  [[nodiscard]] const QStringList& Requests() const { return requests_; }

private:
  void Answer(QTcpSocket* visitor);

  QTcpServer server_;
  QMap<QString, QByteArray> answers_;
  QStringList ignored_;
  int connections_ = 0;
  QStringList requests_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_LOOPBACK_SERVER_H_
