#pragma once

#include "model/json_coding.h"
#include "model/quota_snapshot.h"
#include "model/shared_store.h"

#include <cstdint>
#include <vector>

namespace tallyvane::history {

/// What one provider used on one day.
struct UsageHistoryPoint {
    model::Timestamp date; ///< the start of the user's local day
    model::AIProvider provider = model::AIProvider::codex;
    double estimatedQuotaConsumed = 0; ///< percentage points of the weekly quota
    std::int64_t estimatedLocalTokens = 0;

    bool operator==(const UsageHistoryPoint&) const = default;
};

/// The whole of usage-history.json; replaced, never changed in place.
struct UsageHistory {
    std::int64_t schemaVersion = 1;
    std::vector<UsageHistoryPoint> points; ///< in the order in which they were added

    bool operator==(const UsageHistory&) const = default;
};

/// Keys are the field names; every one is required when reading, others are ignored.
[[nodiscard]] std::expected<QByteArray, model::EncodeError>
encodeHistory(const UsageHistory& history);
[[nodiscard]] std::expected<UsageHistory, model::DecodeError> decodeHistory(const QByteArray& json);

/// The sum of two token counts, or the nearest that 64 bits hold.
[[nodiscard]] std::int64_t addTokens(std::int64_t sum, std::int64_t tokens);

/// Identifies a point in a list: the provider and the seconds since 1970, "codex-1738281600.0".
[[nodiscard]] QString id(const UsageHistoryPoint& point);

/// The stored history; nothing when there is none or it does not decode.
[[nodiscard]] std::optional<UsageHistory> loadHistory(const model::SharedStore& store);

[[nodiscard]] std::expected<void, model::FileError> saveHistory(const model::SharedStore& store,
                                                                const UsageHistory& history);

} // namespace tallyvane::history
