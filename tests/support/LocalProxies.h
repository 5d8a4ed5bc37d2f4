#pragma once

#include "LocalHttpServer.h"

#include <memory>

/// A proxy on the loopback address that hands requests on and counts them. With a user name it wants that and the
/// password.
class LocalProxy : public QObject
{
public:
    LocalProxy()
    {
        m_server.setProxy(QNetworkProxy::NoProxy);
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* client = m_server.nextPendingConnection())
                serve(client);
        });
    }
    int port() const { return m_server.serverPort(); }

    QByteArray user;
    QByteArray password;
    QString hostInstead; ///< where every request goes; empty: to the host that it names
    int handedOn = 0;    ///< requests that went to their server
    int refused = 0;     ///< requests without the right name and password

protected:
    /// Called for each connection.
    virtual void serve(QTcpSocket* client) = 0;

    /// Connects a client with a server; what comes from one side goes to the other.
    void handOn(QTcpSocket* client, const QString& host, int serverPort, const QByteArray& first)
    {
        ++handedOn;
        auto* server = new QTcpSocket(client);
        server->setProxy(QNetworkProxy::NoProxy);
        client->disconnect(this);
        connect(server, &QTcpSocket::readyRead, client, [client, server] { client->write(server->readAll()); });
        connect(server, &QTcpSocket::disconnected, client, [client] { client->disconnectFromHost(); });
        connect(client, &QTcpSocket::readyRead, server, [client, server] { server->write(client->readAll()); });
        connect(client, &QTcpSocket::disconnected, server, [server] { server->abort(); });
        server->connectToHost(hostInstead.isEmpty() ? host : hostInstead, quint16(serverPort));
        server->write(first);
    }

private:
    QTcpServer m_server;
};

/// As a browser uses it: the request line has the whole address.
class LocalHttpProxy : public LocalProxy
{
protected:
    void serve(QTcpSocket* client) override
    {
        connect(client, &QTcpSocket::readyRead, this, [this, client] {
            m_head += client->readAll();
            if (!m_head.contains("\r\n\r\n"))
                return;
            const QByteArray head = m_head;
            m_head.clear();
            const QByteArray wanted = "Proxy-Authorization: Basic " + (user + ':' + password).toBase64();
            if (!user.isEmpty() && !head.contains(wanted + "\r\n")) {
                ++refused;
                client->write(
                    "HTTP/1.1 407 Proxy Authentication Required\r\nProxy-Authenticate: Basic realm=\"test\"\r\n"
                    "Content-Length: 0\r\n\r\n");
                return;
            }
            const int lineEnd = head.indexOf('\r');
            const QList<QByteArray> line = head.left(lineEnd).split(' ');
            const QUrl url = QUrl::fromEncoded(line.value(1));
            const QByteArray target =
                url.path(QUrl::FullyEncoded).toUtf8() + '?' + url.query(QUrl::FullyEncoded).toUtf8();
            // What is meant for the proxy stays here.
            QByteArray lines = head.mid(lineEnd);
            const int authorization = lines.indexOf("\r\nProxy-Authorization:");
            if (authorization >= 0)
                lines.remove(authorization, lines.indexOf("\r\n", authorization + 2) - authorization);
            handOn(client, url.host(), url.port(80), line.value(0) + ' ' + target + " HTTP/1.1" + lines);
        });
    }

private:
    QByteArray m_head;
};

/// SOCKS version 5 with addresses of version 4 and names.
class LocalSocks5Proxy : public LocalProxy
{
protected:
    void serve(QTcpSocket* client) override
    {
        connect(client, &QTcpSocket::readyRead, this, [this, client, state = std::make_shared<State>()] {
            state->bytes += client->readAll();
            take(client, state.get());
        });
    }

private:
    enum eStep_t { stepGreeting, stepUser, stepAddress };
    struct State
    {
        eStep_t step = stepGreeting;
        QByteArray bytes;
    };

    /// A name and a password, each behind its length.
    static bool hasUser(const QByteArray& bytes)
    {
        const int passwordAt = bytes.size() < 2 ? 0 : 2 + bytes.at(1);
        return passwordAt > 0 && bytes.size() > passwordAt && bytes.size() > passwordAt + bytes.at(passwordAt);
    }
    void take(QTcpSocket* client, State* state)
    {
        const QByteArray& bytes = state->bytes;
        if (state->step == stepGreeting && bytes.size() >= 2 && bytes.size() >= 2 + bytes.at(1)) {
            const char method = user.isEmpty() ? 0 : 2;
            const bool offered = bytes.mid(2, bytes.at(1)).contains(method);
            state->bytes.clear();
            state->step = user.isEmpty() ? stepAddress : stepUser;
            client->write(QByteArray("\x05") + (offered ? method : '\xff'));
            refused += offered ? 0 : 1;
            if (!offered)
                client->disconnectFromHost();
        } else if (state->step == stepUser && hasUser(bytes)) {
            const QByteArray wanted = QByteArray("\x01") + char(user.size()) + user + char(password.size()) + password;
            const bool isRight = bytes == wanted;
            state->bytes.clear();
            state->step = stepAddress;
            refused += isRight ? 0 : 1;
            client->write(QByteArray("\x01") + (isRight ? '\0' : '\1'));
            if (!isRight)
                client->disconnectFromHost();
        } else if (state->step == stepAddress && bytes.size() >= 10 && bytes.at(3) == 1) {
            const auto byte = [&bytes](int i) { return int(quint8(bytes.at(i))); };
            const QString host = QStringLiteral("%1.%2.%3.%4").arg(byte(4)).arg(byte(5)).arg(byte(6)).arg(byte(7));
            const int serverPort = byte(8) << 8 | byte(9);
            state->bytes.clear();
            client->write(QByteArray("\x05\x00\x00\x01\x00\x00\x00\x00\x00\x00", 10));
            handOn(client, host, serverPort, QByteArray());
        }
    }
};
