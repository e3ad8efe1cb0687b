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
    pending,     ///< from an earlier fetch, as the latest one failed
    unavailable, ///< there are none yet
};
template <>
inline constexpr std::array rawValues<QuotaSyncState>{
    QLatin1StringView{"current"}, QLatin1StringView{"pending"}, QLatin1StringView{"unavailable"}};

/// The user's choice of a colour scheme.
enum class AppAppearance { system, light, dark };
template <>
inline constexpr std::array rawValues<AppAppearance>{
    QLatin1StringView{"system"}, QLatin1StringView{"light"}, QLatin1StringView{"dark"}};

/// The state of one quota window, as reported by the provider.
struct QuotaWindowSnapshot {
    double usedPercent = 0; ///< percent, 0 to 100; providers have exceeded 100
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

/// The result of one refresh.
struct QuotaSnapshot {
    std::int64_t schemaVersion = 1;
    std::vector<ProviderQuotaSnapshot> providers; ///< codex, then claude
    Timestamp updatedAt;

    bool operator==(const QuotaSnapshot&) const = default;
};

/// The provider's quota window of the given period.
[[nodiscard]] const std::optional<QuotaWindowSnapshot>& window(const ProviderQuotaSnapshot& entry,
                                                               QuotaPeriod period);

/// The provider's entry in the snapshot, or a placeholder without figures.
[[nodiscard]] ProviderQuotaSnapshot entryFor(const QuotaSnapshot& snapshot, AIProvider provider);

/// The snapshot with one entry for each of `providers`, in their order: its own, or a placeholder.
[[nodiscard]] QuotaSnapshot withProviders(const QuotaSnapshot& snapshot,
                                          const std::vector<AIProvider>& providers);

/// A snapshot of placeholders for all providers.
[[nodiscard]] QuotaSnapshot placeholderSnapshot(Timestamp now);

/// Encodes a snapshot as in quota-snapshot.json. Keys are the field names, empty optional fields
/// are omitted, and dates are RFC 3339 texts in whole seconds.
[[nodiscard]] std::expected<QByteArray, FileError> encodeSnapshot(const QuotaSnapshot& snapshot);

/// Decodes that form. Accepts any `schemaVersion`; fails on a missing required key, a wrong type,
/// an unknown enumeration text or a malformed date. Plan names and status messages are passed
/// through readableLine(), with a limit of 64 and 256 characters.
[[nodiscard]] std::expected<QuotaSnapshot, DecodeError> decodeSnapshot(const QByteArray& json);

} // namespace tallyvane::model
