#include "providers/claude/claude_quota_client.h"

#include "providers/claude/https_exchange.h"
#include "providers/claude/retry_after.h"

#include <QCoro/QCoroFuture>

namespace tallyvane::providers {

using Kind = ClaudeQuotaError::Kind;

ClaudeQuotaClient::ClaudeQuotaClient(ClaudeQuotaSource source, platform::SecretStore& secrets,
                                     platform::Clock& clock, std::optional<QSslConfiguration> trust)
    : m_source(std::move(source)), m_secrets(secrets), m_clock(clock), m_trust(std::move(trust)) {}

QCoro::Task<QuotaResult> ClaudeQuotaClient::fetch(AskedBy askedBy) {
    if (m_pause && askedBy == AskedBy::timer) {
        co_return std::unexpected(quotaFailure(rateLimited()));
    }
    const ClaudeQuotaError notAccepted{Kind::httpStatus, 401};
    Attempt result = co_await attempt();
    if (!result && result.error() == notAccepted) {
        m_cache.clear();
        result = co_await attempt();
    }
    if (!result) {
        co_return std::unexpected(quotaFailure(result.error()));
    }
    co_return *std::move(result);
}

QCoro::Task<ClaudeQuotaClient::Attempt> ClaudeQuotaClient::attempt() {
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
    if (!stored) {
        co_return stored;
    }
    const std::optional<model::Timestamp> expiry = stored->expiresAt;
    if (expiry && *expiry <= now) {
        co_return std::unexpected(ClaudeQuotaError{Kind::tokenExpired});
    }
    m_cache.replace(*stored);
    co_return stored;
}

QCoro::Task<ClaudeQuotaClient::Attempt> ClaudeQuotaClient::request(Credentials credentials) {
    HttpsExchange exchange({.url = m_source.usageURL,
                            .headers = {{"Authorization", "Bearer " + credentials.accessToken},
                                        {"anthropic-beta", "oauth-2025-04-20"}}},
                           m_setupFinder.find(m_source.usageURL, m_source.network, m_trust),
                           m_clock, m_source.timeout);
    const QFuture<HttpsExchange::Result> result = exchange.result();
    const HttpsExchange::Result response = co_await result;
    if (!response) {
        co_return std::unexpected(response.error());
    }
    if (response->status == 429) {
        pause(retryAfter(response->retryAfter, m_clock.now()));
        co_return std::unexpected(rateLimited());
    }
    m_pause.reset();
    if (response->status != 200) {
        co_return std::unexpected(ClaudeQuotaError{Kind::httpStatus, response->status});
    }
    co_return parseUsageReply(response->body, credentials.subscriptionType, m_clock.now());
}

void ClaudeQuotaClient::pause(std::chrono::seconds duration) {
    m_pauseEnd = m_clock.now() + duration;
    if (duration > std::chrono::seconds::zero()) {
        m_pause = m_clock.after(duration, [this] { m_pause.reset(); });
    }
}

ClaudeQuotaError ClaudeQuotaClient::rateLimited() const {
    using std::chrono::seconds;
    return {.kind = Kind::rateLimited,
            .pause = std::chrono::ceil<seconds>(m_pauseEnd - m_clock.now())};
}

} // namespace tallyvane::providers
