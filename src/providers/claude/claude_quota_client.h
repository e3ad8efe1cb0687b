#pragma once

#include "platform/clock.h"
#include "providers/claude/claude_credentials.h"
#include "providers/claude/network_setup.h"
#include "providers/claude/usage_reply.h"

#include <memory>
#include <optional>

namespace tallyvane::providers {

/// Where the Claude figures come from.
struct ClaudeQuotaSource {
    QUrl usageURL{QStringLiteral("https://api.anthropic.com/api/oauth/usage")};
    QString keychainService = QStringLiteral("Claude Code-credentials");
    std::filesystem::path credentialsFile; ///< .claude/.credentials.json in the home directory
    std::chrono::milliseconds timeout = std::chrono::seconds{15}; ///< of a request as a whole
    NetworkVariables network;
    std::optional<QSslConfiguration> tls; ///< else the roots of the system and of `network`
};

/// Asks for the Claude quotas with the token of the user's own Claude Code, which goes nowhere but
/// into the request. Main thread only; must outlive its tasks, as `secrets` and `clock` must it.
class ClaudeQuotaClient final : public QuotaClient {
public:
    ClaudeQuotaClient(ClaudeQuotaSource source, platform::SecretStore& secrets,
                      platform::Clock& clock);

    [[nodiscard]] model::AIProvider provider() const override { return model::AIProvider::claude; }

    /// Asks once, and once more with a newly read token if the first is not accepted. Never follows
    /// a redirect and keeps no cookie. After an answer of status 429 the timer gets the same
    /// failure without a request until the answer's Retry-After has passed, an hour at the most.
    [[nodiscard]] QCoro::Task<QuotaResult> fetch(AskedBy askedBy) override;

private:
    using Attempt = std::expected<model::ProviderQuotaSnapshot, ClaudeFetchError>;

    QCoro::Task<Attempt> attempt();
    QCoro::Task<std::expected<Credentials, ClaudeQuotaError>> loadCredentials(model::Timestamp now);
    QCoro::Task<Attempt> request(Credentials credentials);
    void pause(std::chrono::seconds duration);

    ClaudeQuotaSource m_source;
    platform::SecretStore& m_secrets;
    platform::Clock& m_clock;
    TokenCache m_cache;
    NetworkSetupFinder m_setupFinder;
    std::unique_ptr<platform::Alarm> m_pause; ///< of the timer's requests; rings at its end
};

} // namespace tallyvane::providers
