#pragma once

#include "model/quota_pace.h"
#include "model/weekday_time_format.h"

/// Figures, texts and colours derived from a snapshot. Pure functions.
namespace tallyvane::model {

/// The colour scheme in which a window is painted.
enum class ColourScheme { light, dark };

/// An opaque sRGB colour, components 0 to 1.
struct Colour {
    double red;
    double green;
    double blue;
};

[[nodiscard]] Colour accentColour(AIProvider provider);

/// The URL of the provider's page about the user's usage.
[[nodiscard]] QString usagePage(AIProvider provider);

/// "Codex" or "Claude".
[[nodiscard]] QString displayName(AIProvider provider);

/// The remaining percentage of a window, clamped to 0 to 100.
[[nodiscard]] double remainingPercent(const QuotaWindowSnapshot& window);

/// Remaining percentages below this are shown as a warning.
inline constexpr double lowPercent = 25;

/// The lowest remaining five-hour percentage of all providers, rounded half away from zero. Nothing
/// when no provider has a five-hour window.
[[nodiscard]] std::optional<int> lowestRemainingPercent(const QuotaSnapshot& snapshot);

/// A provider's remaining percentages, "5H 19%  ·  WK 63%", truncated, with 0 for an absent window;
/// while pending, the reason instead.
[[nodiscard]] QString summaryText(const ProviderQuotaSnapshot& entry);

/// "37%".
[[nodiscard]] QString percentText(int percent);

/// lowestRemainingPercent() as text, such as "37%"; empty when there is none.
[[nodiscard]] QString labelText(const QuotaSnapshot& snapshot);

/// Between texts of one line.
inline constexpr QStringView dot = u"  \u00B7  ";

/// One line per entry, "Codex: 5H 19%  ·  WK 63%"; plain text.
[[nodiscard]] QStringList summaryLines(const QuotaSnapshot& snapshot);

/// When the quotas that will not last until their reset run out, "5H runs out in 1h 10m" and "WK in
/// 2d 3h", as far as known.
[[nodiscard]] QStringList runOutTexts(const ProviderQuotaSnapshot& entry, Timestamp now,
                                      const RecentRates& recent = {});

/// When a window resets: "in 1h 30m", or the weekday and time if that is a day or more away, or why
/// it is unknown.
[[nodiscard]] QString resetText(std::optional<Timestamp> resetsAt,
                                const ProviderQuotaSnapshot& entry, Timestamp now,
                                const WeekdayTimeFormat& weekdayTime);

/// How soon something happens: "in 5m", "in 1h 30m", "in 3d 4h"; at least a minute.
[[nodiscard]] QString countdownText(Timestamp::duration left);

/// The age of `date`: "never", "just now", "5 min ago", "2 hr ago", "3 d ago".
[[nodiscard]] QString ageText(std::optional<Timestamp> date, Timestamp now);

} // namespace tallyvane::model
