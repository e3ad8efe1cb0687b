#pragma once

#include "platform/clock.h"
#include "providers/claude/claude_credentials.h"
#include "providers/claude/claude_quota_source.h"
#include "providers/claude/network_setup.h"
#include "providers/claude/usage_reply.h"

#include <memory>
#include <optional>

namespace tallyvane::providers {

/// Asks for the Claude quotas with the token of the user's own Claude Code, which is used for
/// nothing else. Main thread only; must outlive its tasks and be outlived by `secrets` and `clock`.
class ClaudeQuotaClient final : public QuotaClient {
public:
    /// `trust` replaces the roots of the system and of the variables.
    ClaudeQuotaClient(ClaudeQuotaSource source, platform::SecretStore& secrets,
                      platform::Clock& clock,
                      std::optional<QSslConfiguration> trust = std::nullopt);

    [[nodiscard]] model::AIProvider provider() const override { return model::AIProvider::claude; }

    /// Sends one request, and after status 401 a second one with a newly read token. Follows no
    /// redirect and keeps no cookie. After status 429, requests of the timer fail at once until the
    /// time given by Retry-After has passed.
    [[nodiscard]] QCoro::Task<QuotaResult> fetch(AskedBy askedBy) override;

private:
    using Attempt = std::expected<model::ProviderQuotaSnapshot, ClaudeQuotaError>;

    QCoro::Task<Attempt> attempt();
    QCoro::Task<std::expected<Credentials, ClaudeQuotaError>> loadCredentials(model::Timestamp now);
    QCoro::Task<Attempt> request(Credentials credentials);
    void pause(std::chrono::seconds duration);
    [[nodiscard]] ClaudeQuotaError rateLimited() const;

    ClaudeQuotaSource m_source;
    platform::SecretStore& m_secrets;
    platform::Clock& m_clock;
    std::optional<QSslConfiguration> m_trust;
    TokenCache m_cache;
    NetworkSetupFinder m_setupFinder;
    std::unique_ptr<platform::Alarm> m_pause; ///< set while the timer's requests are paused
    model::Timestamp m_pauseEnd;
};

} // namespace tallyvane::providers
