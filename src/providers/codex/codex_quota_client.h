#pragma once

#include "providers/process_runner.h"
#include "providers/quota_client.h"

namespace tallyvane::providers {

/// Where the Codex CLI is looked for, in this order. The search path is not: a desktop session's
/// differs from a shell's.
[[nodiscard]] QStringList codexCandidates(const QString& homeDirectory);

/// Asks the user's own Codex CLI for the quota, by its application server ("codex app-server":
/// JSON-RPC messages without a version member, one a line). The CLI uses its own sign-in.
class CodexQuotaClient final : public QuotaClient {
public:
    CodexQuotaClient(QStringList candidates, ProcessRunner& runner, const platform::Clock& clock)
        : m_candidates(std::move(candidates)), m_runner(runner), m_clock(clock) {}

    [[nodiscard]] model::AIProvider provider() const override { return model::AIProvider::codex; }

    /// Takes up to 20 seconds. The CLI has no rule for who asks.
    [[nodiscard]] QCoro::Task<QuotaResult> fetch(AskedBy askedBy) override;

private:
    QStringList m_candidates;
    ProcessRunner& m_runner;
    const platform::Clock& m_clock;
};

} // namespace tallyvane::providers
