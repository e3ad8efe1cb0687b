#pragma once

#include "history/local_token_estimator.h"
#include "history/usage_history.h"
#include "model/defaults_store.h"
#include "model/local_zone.h"

#include <optional>

namespace tallyvane::history {

/// Turns refreshes into history.
class UsageHistoryRecorder {
public:
    /// `defaults` keeps the token totals last seen, as whole numbers under "token-baseline.codex"
    /// and "token-baseline.claude".
    UsageHistoryRecorder(const model::SharedStore& store, model::DefaultsStore& defaults,
                         const model::LocalZone& zone)
        : m_store(store), m_defaults(defaults), m_zone(zone) {}

    /// Adds to each provider's point of today what its weekly quota rose by from `previous` to
    /// `current` and what its token total rose by since the last call, drops points older than 90
    /// days and saves the file. A figure that fell adds nothing. Gives the history as saved.
    [[nodiscard]] std::expected<UsageHistory, model::FileError>
    record(const std::optional<model::QuotaSnapshot>& previous, const model::QuotaSnapshot& current,
           const TokenTotals& tokenTotals, model::Timestamp now);

private:
    std::int64_t tokenDelta(model::AIProvider provider, std::int64_t total);

    const model::SharedStore& m_store;
    model::DefaultsStore& m_defaults;
    model::LocalZone m_zone;
};

} // namespace tallyvane::history
