#pragma once

#include "history/session_log_scan.h"
#include "history/usage_history.h"
#include "model/defaults_store.h"
#include "model/local_zone.h"

#include <optional>

namespace tallyvane::history {

/// The token totals that are in the history already, stored as whole numbers under
/// "token-baseline.codex" and "token-baseline.claude". A total below 1 counts as none.
class TokenBaselines {
public:
    /// `defaults` must outlive this object.
    explicit TokenBaselines(model::DefaultsStore& defaults) : m_defaults(defaults) {}

    /// The increase since the last move(). 0 for a total that fell, and for the first one, whose
    /// tokens belong to no particular day.
    [[nodiscard]] std::int64_t tokenDelta(model::AIProvider provider, std::int64_t total) const;

    /// Makes these totals the new baselines. On an error the old ones stay.
    [[nodiscard]] std::expected<void, model::FileError> move(const TokenTotals& totals);

private:
    [[nodiscard]] std::int64_t baseline(model::AIProvider provider) const;

    model::DefaultsStore& m_defaults;
    TokenTotals m_remembered; ///< for when the file cannot be written or was removed
};

/// The result of UsageHistoryRecorder::record().
struct RecordedHistory {
    UsageHistory history;
    /// For the user: why new tokens are missing. A later call adds them.
    std::optional<model::Message> uncounted;
};

/// Adds the result of a refresh to the usage history.
class UsageHistoryRecorder {
public:
    UsageHistoryRecorder(const model::SharedStore& store, TokenBaselines& baselines,
                         const model::LocalZone& zone)
        : m_store(store), m_baselines(baselines), m_zone(zone) {}

    /// Adds to each provider's point of today the increase of its weekly quota from `previous` to
    /// `current` and of its token total since the last call. Decreases and missing totals add
    /// nothing. Drops points older than retentionDays and saves the file.
    [[nodiscard]] std::expected<RecordedHistory, model::FileError>
    record(const std::optional<model::QuotaSnapshot>& previous, const model::QuotaSnapshot& current,
           const TokenTotals& tokenTotals, model::Timestamp now);

private:
    const model::SharedStore& m_store;
    TokenBaselines& m_baselines;
    model::LocalZone m_zone;
};

} // namespace tallyvane::history
