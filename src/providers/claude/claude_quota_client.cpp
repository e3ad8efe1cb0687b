#include "providers/claude/claude_quota_client.h"

#include <QCoro/QCoroNetworkReply>
#include <QtCore/QScopedPointer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <memory>

namespace tallyvane::providers {

namespace {

using Kind = ClaudeQuotaError::Kind;

constexpr qint64 maximumBodySize = 4 * 1024 * 1024;

QNetworkRequest usageRequest(const ClaudeQuotaSource& source, const QByteArray& accessToken) {
    QNetworkRequest request(source.usageURL);
    if (source.tls) {
        request.setSslConfiguration(*source.tls);
    }
    request.setRawHeader("Authorization", "Bearer " + accessToken);
    request.setRawHeader("anthropic-beta", "oauth-2025-04-20");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    // One request in minutes gains nothing by HTTP/2, which hides how a connection ended.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute}) {
        request.setAttribute(attribute, QNetworkRequest::Manual);
    }
    return request;
}

/// Why a request was given up.
enum class Cut { none, late, tooLarge };

/// The error that a finished reply stands for, if any. Its error code alone does not tell: it is
/// set for the statuses of HTTP as well.
std::optional<ClaudeFetchError> failure(const QNetworkReply& reply, Cut cut) {
    if (cut == Cut::late) {
        return TransportError{QStringLiteral("it took too long to answer")};
    }
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 429) {
        return ClaudeQuotaError{Kind::rateLimited};
    }
    if (status != 0 && status != 200) {
        return ClaudeQuotaError{Kind::httpStatus, status};
    }
    if (cut == Cut::none && reply.error() != QNetworkReply::NoError) {
        return TransportError{reply.errorString()};
    }
    if (cut == Cut::tooLarge || status == 0) {
        return ClaudeQuotaError{Kind::malformedResponse};
    }
    return std::nullopt;
}

} // namespace

ClaudeQuotaClient::ClaudeQuotaClient(ClaudeQuotaSource source, platform::SecretStore& secrets,
                                     platform::Clock& clock)
    : m_source(std::move(source)), m_secrets(secrets), m_clock(clock) {}

QCoro::Task<std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>>
ClaudeQuotaClient::fetch() {
    const ClaudeFetchError notAccepted = ClaudeQuotaError{Kind::httpStatus, 401};
    auto result = co_await attempt();
    if (!result && result.error() == notAccepted) {
        m_cache.clear();
        result = co_await attempt();
    }
    co_return result;
}

QCoro::Task<std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>>
ClaudeQuotaClient::attempt() {
    const auto credentials = co_await loadCredentials(m_clock.now());
    if (!credentials) {
        co_return std::unexpected(credentials.error());
    }
    co_return co_await request(*credentials);
}

QCoro::Task<std::expected<Credentials, ClaudeQuotaError>>
ClaudeQuotaClient::loadCredentials(model::Timestamp now) {
    std::optional<Credentials> cached = m_cache.usableAt(now);
    if (cached) {
        co_return *std::move(cached);
    }
    auto stored = co_await readStoredCredentials(&m_secrets, m_source.keychainService,
                                                 m_source.credentialsFile);
    if (stored && stored->expiresAt && *stored->expiresAt <= now) {
        co_return std::unexpected(ClaudeQuotaError{Kind::tokenExpired});
    }
    if (stored) {
        m_cache.replace(*stored);
    }
    co_return stored;
}

QCoro::Task<std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>>
ClaudeQuotaClient::request(Credentials credentials) {
    // Deleted later, since this resumes inside the reply's own signal.
    using DeleteLater = QScopedPointerDeleteLater;
    // One for all requests would keep a thread, and some memory of each connection in quick
    // succession.
    const std::unique_ptr<QNetworkAccessManager, DeleteLater> network(new QNetworkAccessManager);
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(
        network->get(usageRequest(m_source, credentials.accessToken)));
    Cut cut = Cut::none;
    const auto giveUp = [&cut, &reply](Cut reason) {
        if (cut == Cut::none) {
            cut = reason;
            reply->abort();
        }
    };
    // Not the request's own transfer time-out, which every byte that arrives starts anew.
    const auto alarm = m_clock.after(m_source.timeout, [giveUp] { giveUp(Cut::late); });
    const QObject scope; // ends the connection with this frame, which the lambda refers to
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &scope, [giveUp, &reply] {
        if (reply->bytesAvailable() > maximumBodySize) {
            giveUp(Cut::tooLarge);
        }
    });
    co_await reply.get();
    if (auto error = failure(*reply, cut)) {
        co_return std::unexpected(*std::move(error));
    }
    co_return parseUsageReply(reply->readAll(), credentials.subscriptionType, m_clock.now());
}

} // namespace tallyvane::providers
