#include "providers/claude/https_exchange.h"

#include "model/foreign_text.h"

namespace tallyvane::providers {

namespace {

QByteArray requestBytes(const HttpsRequest& request) {
    const QByteArray target =
        request.url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    const QUrl host = request.url.adjusted(QUrl::RemoveUserInfo);
    QByteArray bytes = "GET " + target +
                       " HTTP/1.1\r\nHost: " + host.authority(QUrl::FullyEncoded).toLatin1() +
                       "\r\n";
    for (const auto& [name, value] : request.headers) {
        bytes += name + ": " + value + "\r\n";
    }
    return bytes + "Connection: close\r\n\r\n";
}

QByteArray connectBytes(const QUrl& url, const QNetworkProxy& proxy) {
    const QByteArray place = url.authority(QUrl::FullyEncoded).toLatin1();
    QByteArray bytes = "CONNECT " + place + " HTTP/1.1\r\nHost: " + place + "\r\n";
    if (!proxy.user().isEmpty()) {
        const QByteArray signIn = (proxy.user() + u':' + proxy.password()).toUtf8();
        bytes += "Proxy-Authorization: Basic " + signIn.toBase64() + "\r\n";
    }
    return bytes + "\r\n";
}

} // namespace

HttpsExchange::HttpsExchange(const HttpsRequest& request,
                             const QFuture<NetworkSetupFinder::Result>& setup,
                             platform::Clock& clock, std::chrono::milliseconds timeout)
    : m_url(request.url.adjusted(QUrl::RemoveUserInfo)),
      m_request(requestBytes(request)),
      m_clock(clock),
      m_alarm(clock.after(
          timeout,
          [this] {
              fail(QString::fromLatin1(QT_TRANSLATE_NOOP("Message", "it took too long to answer")));
          },
          platform::SuspendedTime::doesNotCount)) {
    m_url.setPort(portOf(request.url));
    m_promise.start();
    QObject::connect(&m_setup, &QFutureWatcherBase::finished, &m_setup, [this] {
        const NetworkSetupFinder::Result found = m_setup.result();
        if (!found) {
            fail(found.error());
        } else if (m_alarm) {
            connectVia(*found);
        }
    });
    m_setup.setFuture(setup);
}

void HttpsExchange::connectVia(const NetworkSetup& setup) {
    m_tls = setup.tls;
    m_proxy = setup.proxy;
    m_isAtProxy = setup.proxy.type() == QNetworkProxy::HttpProxy;
    const QString host = m_isAtProxy ? setup.proxy.hostName() : m_url.host();
    const quint16 port = m_isAtProxy ? setup.proxy.port() : portOf(m_url);
    m_race.emplace(host, port, m_isAtProxy ? QNetworkProxy(QNetworkProxy::NoProxy) : setup.proxy,
                   m_clock,
                   [this](ConnectionRace::Result socket) { connected(std::move(socket)); });
}

void HttpsExchange::connected(ConnectionRace::Result socket) {
    if (!socket) {
        fail(socket.error());
        return;
    }
    m_socket = *std::move(socket);
    QSslSocket* const connection = m_socket.get();
    QObject::connect(connection, &QSslSocket::readyRead, &m_setup, [this] { read(); });
    QObject::connect(connection, &QSslSocket::errorOccurred, &m_setup, [this] { socketFailed(); });
    QObject::connect(connection, &QSslSocket::encrypted, &m_setup,
                     [this] { send(HttpResponseParser::Answer::whole, m_request); });
    m_socket->setSslConfiguration(m_tls);
    m_socket->setPeerVerifyName(m_url.host());
    if (m_isAtProxy) {
        send(HttpResponseParser::Answer::header, connectBytes(m_url, m_proxy));
    } else {
        m_socket->startClientEncryption();
    }
}

void HttpsExchange::send(HttpResponseParser::Answer answer, const QByteArray& request) {
    if (m_alarm) { // not timed out meanwhile
        m_parser = std::make_unique<HttpResponseParser>(answer);
        m_socket->write(request);
    }
}

void HttpsExchange::read() {
    while (m_alarm && m_parser && m_socket->bytesAvailable() > 0) {
        switch (m_parser->take(m_socket->readAll())) {
        case HttpResponseParser::Progress::needsMore:
            break;
        case HttpResponseParser::Progress::complete:
            answered();
            break;
        case HttpResponseParser::Progress::malformed:
            finish(std::unexpected(ClaudeQuotaError{ClaudeQuotaError::Kind::malformedResponse}));
        }
    }
}

void HttpsExchange::answered() {
    const HttpResponse response = m_parser->response();
    m_parser.reset();
    if (!m_isAtProxy) {
        finish(response);
    } else if (response.status == 200) {
        m_isAtProxy = false;
        m_socket->startClientEncryption();
    } else {
        fail(QStringLiteral("status %1").arg(response.status));
    }
}

void HttpsExchange::socketFailed() {
    read(); // what arrived before the failure
    const bool isClosed = m_socket->error() == QAbstractSocket::RemoteHostClosedError;
    const bool isHandshake = m_socket->error() == QAbstractSocket::SslHandshakeFailedError;
    if (m_alarm && isClosed && m_parser && !m_isAtProxy && m_parser->isCompleteAtEnd()) {
        answered();
    } else {
        fail((isHandshake ? QStringLiteral("SSL handshake failed: ") : QString()) +
             m_socket->errorString());
    }
}

void HttpsExchange::fail(const QString& reason) {
    const QString place = m_isAtProxy ? QStringLiteral("proxy: ") : QString();
    finish(std::unexpected(ClaudeQuotaError{.kind = ClaudeQuotaError::Kind::transport,
                                            .reason = model::readableText(place + reason)}));
}

void HttpsExchange::finish(Result result) {
    // Keeps the socket, which may be emitting a signal right now.
    if (std::exchange(m_alarm, nullptr)) {
        m_promise.addResult(std::move(result));
        m_promise.finish();
    }
}

} // namespace tallyvane::providers
