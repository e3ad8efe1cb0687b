#pragma once

#include "history/session_log_scan.h"
#include "model/defaults_store.h"

namespace tallyvane::history {

/// The token totals up to which the history counts, kept as whole numbers under
/// "token-baseline.codex" and "token-baseline.claude". A total below 1 is none.
class TokenBaselines {
public:
    /// `defaults` outlives this.
    explicit TokenBaselines(model::DefaultsStore& defaults) : m_defaults(defaults) {}

    /// What a total rose by since the last move. One that fell rose by nothing, and so did the
    /// first ever, which says nothing of when its tokens were used.
    [[nodiscard]] std::int64_t tokenDelta(model::AIProvider provider, std::int64_t total) const;

    /// Counts from these totals on. After an error it still counts from where it did.
    [[nodiscard]] std::expected<void, model::FileError> move(const TokenTotals& totals);

private:
    [[nodiscard]] std::int64_t baseline(model::AIProvider provider) const;

    model::DefaultsStore& m_defaults;
    TokenTotals m_remembered; ///< for a file that was never written, or that someone removed
};

} // namespace tallyvane::history
