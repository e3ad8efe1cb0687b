#pragma once

#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtNetwork/QSslConfiguration>
#include <QtNetwork/QSslKey>
#include <QtNetwork/QSslServer>

#include <functional>

namespace tallyvane::tests {

/// What the server does with one request.
struct ScriptedReply {
    enum class Ending {
        closes,
        alwaysCloses, ///< the same for every further request
        keepsOpen,
    };

    QByteArray bytes; ///< sent as they stand
    Ending ending = Ending::closes;
    std::function<void()> before; ///< called when the request has arrived
};

[[nodiscard]] ScriptedReply httpReply(int status, const QByteArray& body,
                                      const QByteArray& headers = {});

/// A self-signed certificate and its key, made by the openssl command.
struct TlsIdentity {
    QSslCertificate certificate;
    QSslKey key;
};
/// `name` is the one that the certificate is for, as OpenSSL writes alternative names.
[[nodiscard]] TlsIdentity makeTlsIdentity(const QString& name = QStringLiteral("IP:127.0.0.1"));

/// An HTTPS server, on a free port of 127.0.0.1 unless others are named, that gives each scripted
/// reply once, in order. One request more than that fails the test.
class TlsServer : public QObject {
public:
    TlsServer(const TlsIdentity& identity, QList<ScriptedReply> script,
              const QHostAddress& address = QHostAddress::LocalHost, quint16 port = 0);

    [[nodiscard]] QUrl url(const QString& path) const;

    /// The request line and header lines of each request so far.
    [[nodiscard]] const QList<QByteArrayList>& requests() const { return m_requests; }

private:
    void read(QTcpSocket* socket);

    QSslServer m_server;
    QList<ScriptedReply> m_script;
    QList<QByteArrayList> m_requests;
};

} // namespace tallyvane::tests
