#pragma once

#include "app/claude_part.h"
#include "app/late_library.h"

#include <memory>

namespace tallyvane::app {

/// Asks for the Claude quotas with the part that is loaded at the first request: Qt Network,
/// libsecret and what those load are a tenth of the idle program's memory and half of the time that
/// `tallyvane status` would take above an empty program. Main thread only; must outlive its tasks.
class ClaudeAccess final : public providers::QuotaClient {
public:
    /// `clock` must outlive it.
    ClaudeAccess(providers::ClaudeQuotaSource source, platform::Clock& clock)
        : m_source(std::move(source)), m_clock(clock) {}

    /// Loads the part, unless it is there. The error is the system's reason.
    [[nodiscard]] std::expected<ClaudePart*, QString> part();

    [[nodiscard]] model::AIProvider provider() const override { return model::AIProvider::claude; }

    /// Where the part cannot be loaded, the service counts as not reached.
    [[nodiscard]] QCoro::Task<providers::QuotaResult> fetch(providers::AskedBy askedBy) override;

private:
    providers::ClaudeQuotaSource m_source;
    platform::Clock& m_clock;
    LateLibrary m_library{"tallyvane-claude.so"};
    std::unique_ptr<ClaudePart> m_part;
};

} // namespace tallyvane::app
