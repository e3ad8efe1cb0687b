#pragma once

#include "providers/claude/claude_quota_error.h"
#include "providers/claude/connection_race.h"
#include "providers/claude/http_response_parser.h"
#include "providers/claude/network_setup.h"

#include <QtCore/QFutureWatcher>
#include <QtCore/QList>
#include <QtCore/QPromise>

#include <expected>
#include <utility>

namespace tallyvane::providers {

/// A GET request. Only Host, `headers` and "Connection: close" are sent with it.
struct HttpsRequest {
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers; ///< no control characters
};

/// One request over its own connection, and the response. Never resends the request. Main thread
/// only; never blocks.
class HttpsExchange {
public:
    using Result = std::expected<HttpResponse, ClaudeQuotaError>;

    /// Starts at once, connecting as soon as `setup` is available. `timeout` covers all of it, not
    /// counting suspended time.
    HttpsExchange(const HttpsRequest& request, const QFuture<NetworkSetupFinder::Result>& setup,
                  platform::Clock& clock, std::chrono::milliseconds timeout);
    HttpsExchange(const HttpsExchange&) = delete;
    HttpsExchange& operator=(const HttpsExchange&) = delete;

    /// The response. The exchange may be destroyed once this has been awaited.
    [[nodiscard]] QFuture<Result> result() { return m_promise.future(); }

private:
    void connectVia(const NetworkSetup& setup);
    void connected(ConnectionRace::Result socket);
    void send(HttpResponseParser::Answer answer, const QByteArray& request);
    void read();
    void socketFailed();
    void answered();
    void fail(const QString& reason);
    void finish(Result result);

    QUrl m_url;           ///< with its port
    QByteArray m_request; ///< serialised
    platform::Clock& m_clock;
    QSslConfiguration m_tls;
    QNetworkProxy m_proxy;
    bool m_isAtProxy = false;                 ///< waiting for an HTTP proxy to open the tunnel
    std::unique_ptr<platform::Alarm> m_alarm; ///< null once there is a result
    QFutureWatcher<NetworkSetupFinder::Result> m_setup;
    std::optional<ConnectionRace> m_race;
    std::unique_ptr<QSslSocket> m_socket;
    std::unique_ptr<HttpResponseParser> m_parser; ///< null unless a response is awaited
    QPromise<Result> m_promise;
};

} // namespace tallyvane::providers
