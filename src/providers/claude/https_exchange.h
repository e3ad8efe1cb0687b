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

/// A GET request. Nothing is sent but its request line, Host, `headers` and "Connection: close".
struct HttpsRequest {
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers; ///< without control characters
};

/// One request over one connection of its own, and the answer. Sent once at the most, whatever
/// becomes of the connection. Main thread only, which it never blocks.
class HttpsExchange {
public:
    using Result = std::expected<HttpResponse, ClaudeFetchError>;

    /// Begins at once: connects when `setup` is there. All of it together may take `timeout`, in
    /// which the time that the machine is suspended does not count.
    HttpsExchange(const HttpsRequest& request, const QFuture<NetworkSetupFinder::Result>& setup,
                  platform::Clock& clock, std::chrono::milliseconds timeout);
    HttpsExchange(const HttpsExchange&) = delete;
    HttpsExchange& operator=(const HttpsExchange&) = delete;

    /// The answer, or why there is none. The exchange may be destroyed once that is awaited.
    [[nodiscard]] QFuture<Result> result() { return m_promise.future(); }

private:
    void connectBy(const NetworkSetup& setup);
    void connected(ConnectionRace::Result socket);
    void send(HttpResponseParser::Answer answer, const QByteArray& request);
    void read();
    void socketFailed();
    void answered();
    void fail(const QString& reason);
    void finish(Result result);

    QUrl m_url;           ///< with its port
    QByteArray m_request; ///< as it is sent
    platform::Clock& m_clock;
    QSslConfiguration m_tls;
    QNetworkProxy m_proxy;
    bool m_isAtProxy = false;                 ///< an HTTP proxy that has not yet led to the server
    std::unique_ptr<platform::Alarm> m_alarm; ///< none once the result is there
    QFutureWatcher<NetworkSetupFinder::Result> m_setup;
    std::optional<ConnectionRace> m_race;
    std::unique_ptr<QSslSocket> m_socket;
    std::unique_ptr<HttpResponseParser> m_parser; ///< of the answer that is awaited
    QPromise<Result> m_promise;
};

} // namespace tallyvane::providers
