#pragma once

#include "model/json_coding.h"
#include "model/quota_snapshot.h"
#include "model/shared_store.h"

#include <cstdint>
#include <vector>

namespace tallyvane::history {

/// How many days before today the history covers. Older points are dropped.
inline constexpr int retentionDays = 90;

/// One provider's use on one day.
struct UsageHistoryPoint {
    model::Timestamp date; ///< the start of the user's local day
    model::AIProvider provider = model::AIProvider::codex;
    double estimatedQuotaConsumed = 0; ///< percentage points of the weekly quota
    std::int64_t estimatedLocalTokens = 0;

    bool operator==(const UsageHistoryPoint&) const = default;
};

/// The content of usage-history.json.
struct UsageHistory {
    std::int64_t schemaVersion = 1;
    std::vector<UsageHistoryPoint> points; ///< in insertion order

    bool operator==(const UsageHistory&) const = default;
};

/// The points of `providers` alone.
[[nodiscard]] UsageHistory withProviders(UsageHistory history,
                                         const std::vector<model::AIProvider>& providers);

/// The JSON form: keys are the field names. Decoding requires each and ignores others.
[[nodiscard]] std::expected<QByteArray, model::FileError>
encodeHistory(const UsageHistory& history);
[[nodiscard]] std::expected<UsageHistory, model::DecodeError> decodeHistory(const QByteArray& json);

/// The sum of two token counts, saturated to 64 bits.
[[nodiscard]] std::int64_t addTokens(std::int64_t sum, std::int64_t tokens);

/// A point's identity in a list: provider and seconds since 1970, as "codex-1738281600.0".
[[nodiscard]] QString id(const UsageHistoryPoint& point);

/// The stored history; nothing if there is none or it cannot be decoded.
[[nodiscard]] std::optional<UsageHistory> loadHistory(const model::SharedStore& store);

[[nodiscard]] std::expected<void, model::FileError> saveHistory(const model::SharedStore& store,
                                                                const UsageHistory& history);

} // namespace tallyvane::history
