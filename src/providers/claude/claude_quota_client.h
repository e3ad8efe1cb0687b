#pragma once

#include "platform/clock.h"
#include "providers/claude/claude_credentials.h"
#include "providers/claude/usage_reply.h"

#include <QtCore/QUrl>
#include <QtNetwork/QSslConfiguration>

#include <optional>

namespace tallyvane::providers {

/// Where the Claude figures come from.
struct ClaudeQuotaSource {
    QUrl usageURL{QStringLiteral("https://api.anthropic.com/api/oauth/usage")};
    QString keychainService = QStringLiteral("Claude Code-credentials");
    std::filesystem::path credentialsFile; ///< .claude/.credentials.json in the home directory
    std::chrono::milliseconds timeout = std::chrono::seconds{15}; ///< of a request as a whole
    std::optional<QSslConfiguration> tls;                         ///< the default one unless given
};

/// Asks for the Claude quotas with the token of the user's own Claude Code, which goes nowhere but
/// into the request. Main thread only; must outlive its tasks, as `secrets` and `clock` must it.
class ClaudeQuotaClient {
public:
    ClaudeQuotaClient(ClaudeQuotaSource source, platform::SecretStore& secrets,
                      platform::Clock& clock);

    /// Asks once, and once more with a newly read token if the first is not accepted. Never follows
    /// a redirect and keeps no cookie.
    [[nodiscard]] QCoro::Task<std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>>
    fetch();

private:
    QCoro::Task<std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>> attempt();
    QCoro::Task<std::expected<Credentials, ClaudeQuotaError>> loadCredentials(model::Timestamp now);
    QCoro::Task<std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>>
    request(Credentials credentials);

    ClaudeQuotaSource m_source;
    platform::SecretStore& m_secrets;
    platform::Clock& m_clock;
    TokenCache m_cache;
};

} // namespace tallyvane::providers
