#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

namespace twk::test {

/// Serves a few pages on the loopback interface. A path that it does not know is 404; one that it holds back
/// is never answered.
class PageServer : public QTcpServer {
  public:
    PageServer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    QHash<QByteArray, QByteArray> pages; ///< path to body
    QByteArray held_back;
    QByteArray content_type = "text/html; charset=utf-8";

    QString address(const QString& path) const {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }

  private:
    void answer(QTcpSocket& socket) {
        const QByteArray path = socket.readAll().split(' ').value(1);
        if (path == held_back) return;
        const bool known = pages.contains(path);
        const QByteArray body = pages.value(path);
        socket.write(QByteArray(known ? "HTTP/1.1 200 OK" : "HTTP/1.1 404 Not Found") + "\r\nContent-Type: " +
                     content_type + "\r\nContent-Length: " + QByteArray::number(body.size()) +
                     "\r\nConnection: close\r\n\r\n" + body);
        socket.disconnectFromHost();
    }
};

} // namespace twk::test
