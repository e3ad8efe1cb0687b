#pragma once

#include "history/token_baselines.h"
#include "history/usage_history.h"
#include "model/local_zone.h"

#include <optional>

namespace tallyvane::history {

/// What record() has stored.
struct RecordedHistory {
    UsageHistory history;
    /// For the user: why new tokens are not in it yet. A later call adds them.
    std::optional<QString> uncounted;
};

/// Turns refreshes into history.
class UsageHistoryRecorder {
public:
    UsageHistoryRecorder(const model::SharedStore& store, TokenBaselines& baselines,
                         const model::LocalZone& zone)
        : m_store(store), m_baselines(baselines), m_zone(zone) {}

    /// Adds to each provider's point of today what its weekly quota rose by from `previous` to
    /// `current` and what its token total, if there is one, rose by since the last call, drops
    /// points older than 90 days and saves the file. A figure that fell adds nothing.
    [[nodiscard]] std::expected<RecordedHistory, model::FileError>
    record(const std::optional<model::QuotaSnapshot>& previous, const model::QuotaSnapshot& current,
           const TokenTotals& tokenTotals, model::Timestamp now);

private:
    const model::SharedStore& m_store;
    TokenBaselines& m_baselines;
    model::LocalZone m_zone;
};

} // namespace tallyvane::history
