#pragma once

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <optional>

namespace tallyvane::tests {

/// A proxy on a free port of 127.0.0.1 for one connection, which knows no protocol: it answers each
/// message of its client with the next reply, and after the last one joins the client to `target`,
/// a port of 127.0.0.1, or falls silent when there is none.
class ScriptedProxy : public QObject {
public:
    explicit ScriptedProxy(QByteArrayList replies, std::optional<quint16> target = std::nullopt)
        : m_replies(std::move(replies)), m_target(target) {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            m_client = m_server.nextPendingConnection();
            connect(m_client, &QTcpSocket::readyRead, this, [this] { read(); });
        });
        if (!m_server.listen(QHostAddress::LocalHost)) {
            qFatal("no server: %s", qPrintable(m_server.errorString()));
        }
    }

    [[nodiscard]] quint16 port() const { return m_server.serverPort(); }
    /// What the client said to the proxy itself.
    [[nodiscard]] const QByteArrayList& messages() const { return m_messages; }

private:
    void read() {
        if (m_upstream.isOpen()) {
            m_upstream.write(m_client->readAll());
            return;
        }
        m_messages.append(m_client->readAll());
        if (m_replies.isEmpty()) {
            return;
        }
        m_client->write(m_replies.takeFirst());
        if (m_replies.isEmpty() && m_target) {
            connect(&m_upstream, &QTcpSocket::readyRead, this,
                    [this] { m_client->write(m_upstream.readAll()); });
            connect(&m_upstream, &QTcpSocket::disconnected, m_client,
                    &QTcpSocket::disconnectFromHost);
            m_upstream.connectToHost(m_server.serverAddress(), *m_target);
        }
    }

    QByteArrayList m_replies;
    std::optional<quint16> m_target;
    QTcpServer m_server;
    QTcpSocket* m_client = nullptr;
    QTcpSocket m_upstream;
    QByteArrayList m_messages;
};

} // namespace tallyvane::tests
