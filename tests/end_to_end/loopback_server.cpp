#include "tests/end_to_end/loopback_server.h"

#include <QTcpSocket>

#include "tests/end_to_end/agent_client.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

QByteArray Response(const QByteArray& status, const QByteArray& contentType,
                    const QByteArray& content) {
  return "HTTP/1.1 " + status + "\r\nContent-Type: " + contentType +
         "\r\nContent-Length: " + QByteArray::number(content.size()) +
         "\r\nConnection: close\r\n\r\n" + content;
}

}  // namespace

LoopbackServer::LoopbackServer() {
  if (!server_.listen(QHostAddress::LocalHost)) {
    Fail(u"no server on the loopback address: "_s + server_.errorString());
  }
  connect(&server_, &QTcpServer::newConnection, this, [this] {
    while (QTcpSocket* visitor = server_.nextPendingConnection()) {
      ++connections_;
      connect(visitor, &QTcpSocket::readyRead, this, [this, visitor] { Answer(visitor); });
      connect(visitor, &QTcpSocket::disconnected, visitor, &QObject::deleteLater);
    }
  });
}

void LoopbackServer::Serve(const QString& path, const QByteArray& contentType,
                           const QByteArray& content) {
  answers_[path] = Response("200 OK", contentType, content);
}

QString LoopbackServer::Address(const QString& path) const {
  return u"http://127.0.0.1:%1%2"_s.arg(server_.serverPort()).arg(path);
}

void LoopbackServer::Answer(QTcpSocket* visitor) {
  const QByteArray request = visitor->readAll();
  const QString path = QString::fromLatin1(request.split(' ').value(1));
  requests_.append(path);
  if (ignored_.contains(path)) {
    return;
  }
  visitor->write(
      answers_.value(path, Response("404 Not Found", "text/html", "<title>No such page</title>")));
  visitor->disconnectFromHost();
}

}  // namespace tessaly::test
