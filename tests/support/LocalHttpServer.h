#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>

/// A server on the loopback address that answers GET as a test wants, one request a connection.
///
/// Whoever uses it links Qt5::Network.
class LocalHttpServer : public QObject
{
public:
    struct Request
    {
        QByteArray target; ///< path and query, or what a proxy is asked for
        QByteArray head;   ///< all lines up to the empty one
        QPointer<QTcpSocket> socket;
    };

    LocalHttpServer()
    {
        // Not even a proxy of the environment stands between.
        m_server.setProxy(QNetworkProxy::NoProxy);
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        connect(&m_server, &QTcpServer::newConnection, this, &LocalHttpServer::takeConnections);
    }

    int port() const { return m_server.serverPort(); }
    QString address() const { return QStringLiteral("http://127.0.0.1:%1").arg(port()); }
    /// From now on connections are refused.
    void close() { m_server.close(); }

    /// A whole answer.
    static QByteArray page(const QByteArray& body, const QByteArray& status = "200 OK")
    {
        return "HTTP/1.1 " + status +
               "\r\nContent-Type: text/xml\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\nConnection: close\r\n\r\n" + body;
    }
    static QByteArray redirect(const QString& location, const QByteArray& status = "302 Found")
    {
        return "HTTP/1.1 " + status + "\r\nLocation: " + location.toUtf8() +
               "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
    }

    /// Called for each request. Its result is sent and the connection closed; an empty one leaves it open.
    std::function<QByteArray(const Request&)> answer;
    QList<Request> requests;

    /// Sends bytes without an end, until the other side has had enough.
    void flood(QTcpSocket* socket, qint64 bytes)
    {
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(bytes) + "\r\n\r\n<updateinfo>");
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket, bytes](qint64 count) {
            sent += count;
            if (sent < bytes && socket->bytesToWrite() == 0)
                socket->write(QByteArray(64 * 1024, ' '));
        });
    }
    qint64 sent = 0; ///< by flood()
    int gone = 0;    ///< connections that have ended

private:
    void takeConnections()
    {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { take(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                ++gone;
                socket->deleteLater();
            });
        }
    }
    void take(QTcpSocket* socket)
    {
        QByteArray head = socket->property("head").toByteArray() + socket->readAll();
        socket->setProperty("head", head);
        const int end = head.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        head.truncate(end);
        socket->setProperty("head", QByteArray());
        requests.append({head.left(head.indexOf('\r')).split(' ').value(1), head, socket});
        const QByteArray text = answer ? answer(requests.last()) : QByteArray();
        if (text.isEmpty())
            return;
        socket->write(text);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
};
