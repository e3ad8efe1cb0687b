#include "app/claude_access.h"

#include "providers/claude/claude_quota_error.h"

namespace tallyvane::app {

std::expected<ClaudePart*, QString> ClaudeAccess::part() {
    if (!m_part) {
        const auto function = m_library.function("tallyvaneMakeClaudePart");
        if (!function) {
            return std::unexpected(function.error());
        }
        m_part.reset(
            reinterpret_cast<decltype(&tallyvaneMakeClaudePart)>(*function)(m_source, m_clock));
    }
    return m_part.get();
}

QCoro::Task<providers::QuotaResult> ClaudeAccess::fetch(providers::AskedBy askedBy) {
    const auto loaded = part();
    if (!loaded) {
        using Kind = providers::ClaudeQuotaError::Kind;
        const providers::ClaudeQuotaError error{.kind = Kind::transport, .reason = loaded.error()};
        co_return std::unexpected(providers::quotaFailure(error));
    }
    co_return co_await (*loaded)->client().fetch(askedBy);
}

} // namespace tallyvane::app
