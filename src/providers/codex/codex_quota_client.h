#pragma once

#include "providers/codex/codex_program.h"
#include "providers/process_runner.h"
#include "providers/quota_client.h"

namespace tallyvane::providers {

/// Asks the user's own Codex CLI for the quota through its application server ("codex app-server":
/// JSON-RPC messages without a version member, one per line). The CLI uses its own sign-in.
class CodexQuotaClient final : public QuotaClient {
public:
    /// The arguments must outlive it.
    CodexQuotaClient(const CodexProgram& program, ProcessRunner& runner,
                     const platform::Clock& clock)
        : m_program(program), m_runner(runner), m_clock(clock) {}

    [[nodiscard]] model::AIProvider provider() const override { return model::AIProvider::codex; }

    /// Takes up to 20 seconds. Treats all callers alike.
    [[nodiscard]] QCoro::Task<QuotaResult> fetch(AskedBy askedBy) override;

private:
    [[nodiscard]] QuotaFailure noProgram(const ProcessRunnerError& error) const;

    const CodexProgram& m_program;
    ProcessRunner& m_runner;
    const platform::Clock& m_clock;
};

} // namespace tallyvane::providers
