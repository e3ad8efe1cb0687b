#include "support/tls_server.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace tallyvane::tests {

using namespace Qt::StringLiterals;

ScriptedReply httpReply(int status, const QByteArray& body, const QByteArray& headers) {
    return {"HTTP/1.1 " + QByteArray::number(status) + " Scripted\r\nContent-Length: " +
            QByteArray::number(body.size()) + "\r\n" + headers + "\r\n" + body};
}

TlsIdentity makeTlsIdentity(const QString& name) {
    const QTemporaryDir directory;
    QFile certificate(directory.filePath(u"certificate"_s));
    QFile key(directory.filePath(u"key"_s));
    QProcess openssl;
    openssl.startCommand(
        u"openssl req -x509 -nodes -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 "
        "-subj /CN=Test -addext subjectAltName=%1 -keyout %2 -out %3"_s.arg(
            name, key.fileName(), certificate.fileName()));
    openssl.waitForFinished();
    if (!certificate.open(QIODevice::ReadOnly) || !key.open(QIODevice::ReadOnly)) {
        qFatal("openssl made no certificate: %s", openssl.readAllStandardError().constData());
    }
    return {QSslCertificate(&certificate), QSslKey(&key, QSsl::Ec)};
}

TlsServer::TlsServer(const TlsIdentity& identity, QList<ScriptedReply> script,
                     const QHostAddress& address, quint16 port)
    : m_script(std::move(script)) {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(identity.certificate);
    configuration.setPrivateKey(identity.key);
    m_server.setSslConfiguration(configuration);
    connect(&m_server, &QSslServer::pendingConnectionAvailable, this, [this] {
        QTcpSocket* socket = m_server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        read(socket);
    });
    if (!m_server.listen(address, port)) {
        qFatal("no server: %s", qPrintable(m_server.errorString()));
    }
}

QUrl TlsServer::url(const QString& path) const {
    return QUrl(u"https://127.0.0.1:%1%2"_s.arg(m_server.serverPort()).arg(path));
}

void TlsServer::read(QTcpSocket* socket) {
    const QByteArray received = socket->peek(socket->bytesAvailable());
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0) {
        return;
    }
    socket->skip(end + 4);
    m_requests.append(received.first(end).replace("\r\n", "\n").split('\n'));
    if (m_script.isEmpty()) {
        socket->abort();
        QFAIL("a request came that was not expected");
    }
    const ScriptedReply reply = m_script.first();
    using Ending = ScriptedReply::Ending;
    if (reply.ending != Ending::alwaysCloses) {
        m_script.removeFirst();
    }
    if (reply.before) {
        reply.before();
    }
    socket->write(reply.bytes);
    if (reply.ending == Ending::closes || reply.ending == Ending::alwaysCloses) {
        socket->disconnectFromHost();
    }
}

} // namespace tallyvane::tests
