// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

namespace twk::test {

/// Port on the loopback interface at which this process takes the suggestion service, whose address is fixed,
/// to be.
inline quint16 service_port() {
    return static_cast<quint16>(20000 + QCoreApplication::applicationPid() % 12000);
}

/// Serves pages on the loopback interface, those that misbehave among them. A path that it does not know is
/// 404.
class PageServer : public QTcpServer {
  public:
    explicit PageServer(quint16 port = 0) {
        listen(QHostAddress::LocalHost, port);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    /// A page, sent as these bytes; it tells that so many more would follow.
    void page(const QByteArray& path, const QByteArray& body,
              const QByteArray& type = "text/html; charset=utf-8", int missing = 0) {
        answers_[path] = "HTTP/1.1 200 OK\r\nContent-Type: " + type +
                         "\r\nContent-Length: " + QByteArray::number(body.size() + missing) +
                         "\r\nConnection: close\r\n\r\n" + body;
    }
    void redirect(const QByteArray& path, const QString& to) {
        answers_[path] =
            "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nConnection: close\r\nLocation: " + to.toLatin1() +
            "\r\n\r\n";
    }
    /// Takes requests for the path and never answers.
    void hold_back(const QByteArray& path) { answers_[path].clear(); }

    QString address(const QString& path) const {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }

    QByteArrayList requests; ///< paths asked for, in order

  private:
    void answer(QTcpSocket& socket) {
        const QByteArray path = socket.readAll().split(' ').value(1);
        requests << path;
        const QByteArray bytes =
            answers_.value(path, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        if (bytes.isEmpty()) return;
        socket.write(bytes);
        socket.disconnectFromHost();
    }

    QHash<QByteArray, QByteArray> answers_; ///< path to all that is sent
};

} // namespace twk::test
