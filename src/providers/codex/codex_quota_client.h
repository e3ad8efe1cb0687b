#pragma once

#include "providers/process_runner.h"
#include "providers/quota_client.h"

namespace tallyvane::providers {

/// The paths at which to look for the Codex CLI, in order. $PATH is not consulted, as that of a
/// desktop session differs from a shell's.
[[nodiscard]] QStringList codexCandidates(const QString& homeDirectory);

/// Asks the user's own Codex CLI for the quota through its application server ("codex app-server":
/// JSON-RPC messages without a version member, one per line). The CLI uses its own sign-in.
class CodexQuotaClient final : public QuotaClient {
public:
    CodexQuotaClient(QStringList candidates, ProcessRunner& runner, const platform::Clock& clock)
        : m_candidates(std::move(candidates)), m_runner(runner), m_clock(clock) {}

    [[nodiscard]] model::AIProvider provider() const override { return model::AIProvider::codex; }

    /// Takes up to 20 seconds. Treats all callers alike.
    [[nodiscard]] QCoro::Task<QuotaResult> fetch(AskedBy askedBy) override;

private:
    QStringList m_candidates;
    ProcessRunner& m_runner;
    const platform::Clock& m_clock;
};

} // namespace tallyvane::providers
