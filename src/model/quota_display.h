#pragma once

#include "model/quota_snapshot.h"
#include "model/weekday_time_format.h"

/// The figures and texts derived from a snapshot; pure functions.
namespace tallyvane::model {

/// An opaque sRGB colour; components 0 to 1.
struct Colour {
    double red;
    double green;
    double blue;
};

[[nodiscard]] Colour accentColour(AIProvider provider);

/// The https address of the provider's own page about the user's usage.
[[nodiscard]] QString usagePage(AIProvider provider);

/// "Codex" or "Claude".
[[nodiscard]] QString displayName(AIProvider provider);

/// Percent left of a window, clamped to 0 to 100.
[[nodiscard]] double remainingPercent(const QuotaWindowSnapshot& window);

/// Below this many percent left a figure is shown as a warning.
inline constexpr double lowPercent = 25;

/// The smallest five-hour figure of all providers as a whole percentage left, rounded with halves
/// away from zero; nothing when no provider has a five-hour window.
[[nodiscard]] std::optional<int> lowestRemainingPercent(const QuotaSnapshot& snapshot);

/// One line on a provider: "5H 19%  ·  WK 63%" with percentages left, truncated, 0 for a window
/// that is absent; while pending the reason instead.
[[nodiscard]] QString summaryText(const ProviderQuotaSnapshot& entry);

/// The smallest five-hour figure, such as "37%"; empty when there is none.
[[nodiscard]] QString labelText(const QuotaSnapshot& snapshot);

/// "Codex: 5H 19%  ·  WK 63%", one line per provider, Codex first; plain text.
[[nodiscard]] QStringList summaryLines(const QuotaSnapshot& snapshot);

/// When a window resets: "in 1h 30m", from a day on the weekday and time; or why that is not known.
[[nodiscard]] QString resetText(std::optional<Timestamp> resetsAt,
                                const ProviderQuotaSnapshot& entry, Timestamp now,
                                const WeekdayTimeFormat& weekdayTime);

/// How long ago `date` was: "never", "just now", "5 min ago", "2 hr ago", "3 d ago".
[[nodiscard]] QString ageText(std::optional<Timestamp> date, Timestamp now);

} // namespace tallyvane::model
