#pragma once

#include "model/json_coding.h"
#include "model/raw_values.h"
#include "model/timestamp.h"

#include <QtCore/QString>

#include <expected>
#include <optional>
#include <vector>

namespace tallyvane::model {

enum class AIProvider { codex, claude };
template <>
inline constexpr std::array rawValues<AIProvider>{QLatin1StringView{"codex"},
                                                  QLatin1StringView{"claude"}};

enum class QuotaPeriod { fiveHour, week };
template <>
inline constexpr std::array rawValues<QuotaPeriod>{QLatin1StringView{"fiveHour"},
                                                   QLatin1StringView{"week"}};

/// How fresh a provider's figures are.
enum class QuotaSyncState {
    current,     ///< from the latest fetch
    pending,     ///< kept from an earlier fetch, because the latest one failed
    unavailable, ///< there have never been any
};
template <>
inline constexpr std::array rawValues<QuotaSyncState>{
    QLatin1StringView{"current"}, QLatin1StringView{"pending"}, QLatin1StringView{"unavailable"}};

/// The colour scheme that the user chose for the program's windows.
enum class AppAppearance { system, light, dark };
template <>
inline constexpr std::array rawValues<AppAppearance>{
    QLatin1StringView{"system"}, QLatin1StringView{"light"}, QLatin1StringView{"dark"}};

/// One quota window as the provider reported it.
struct QuotaWindowSnapshot {
    double usedPercent = 0; ///< percent; 0 to 100, though providers have been seen to exceed it
    std::optional<Timestamp> resetsAt;

    bool operator==(const QuotaWindowSnapshot&) const = default;
};

/// One provider's quotas.
struct ProviderQuotaSnapshot {
    AIProvider provider = AIProvider::codex;
    std::optional<QString> planName;
    std::optional<QuotaWindowSnapshot> fiveHour;
    std::optional<QuotaWindowSnapshot> week;
    std::optional<Timestamp> syncedAt; ///< the last successful fetch
    QuotaSyncState syncState = QuotaSyncState::unavailable;
    std::optional<QString> statusMessage;

    bool operator==(const ProviderQuotaSnapshot&) const = default;
};

/// Everything that one refresh learnt; replaced whole by the next.
struct QuotaSnapshot {
    std::int64_t schemaVersion = 1;
    std::vector<ProviderQuotaSnapshot> providers; ///< codex, then claude
    Timestamp updatedAt;

    bool operator==(const QuotaSnapshot&) const = default;
};

/// The provider's window for one period.
[[nodiscard]] const std::optional<QuotaWindowSnapshot>& window(const ProviderQuotaSnapshot& entry,
                                                               QuotaPeriod period);

/// The provider's entry, or one without figures when the snapshot has none.
[[nodiscard]] ProviderQuotaSnapshot entryFor(const QuotaSnapshot& snapshot, AIProvider provider);

/// A snapshot in which nothing is known of either provider.
[[nodiscard]] QuotaSnapshot placeholderSnapshot(Timestamp now);

/// The bytes of quota-snapshot.json: an object whose keys are the field names above, with empty
/// optional fields left out and dates as RFC 3339 texts in whole seconds.
[[nodiscard]] std::expected<QByteArray, EncodeError> encodeSnapshot(const QuotaSnapshot& snapshot);

/// Reads those bytes. Any `schemaVersion` is accepted; a missing required key, a value of the
/// wrong type, an unknown enumeration text or a malformed date fails the whole. Texts are made
/// readable lines: of 64 characters a plan's name, of 256 a status message.
[[nodiscard]] std::expected<QuotaSnapshot, DecodeError> decodeSnapshot(const QByteArray& json);

} // namespace tallyvane::model
