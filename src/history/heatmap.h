#pragma once

#include "history/history_chart.h"
#include "model/colour_scheme.h"
#include "model/quota_display.h"

#include <map>

/// The data of the calendar heatmap of tokens per day; pure functions.
namespace tallyvane::history {

enum class HeatmapFilter { total, codex, claude };

struct DayCell {
    QDate day;
    bool isFuture = false; ///< after today: drawn transparent

    bool operator==(const DayCell&) const = default;
};

/// The days of one week, from the calendar's first weekday on.
using WeekColumn = std::array<DayCell, 7>;

/// The last `weeks` weeks, the current one last. `weeks` is not negative.
[[nodiscard]] std::vector<WeekColumn> heatmapColumns(int weeks, const Calendar& calendar,
                                                     model::Timestamp now);

struct DayTotals {
    std::map<QDate, std::int64_t> byDay;
    std::int64_t maximum = 1; ///< the largest of them, at least 1
};

/// Tokens per day, of both providers or of one.
[[nodiscard]] DayTotals dayTotals(const UsageHistory& history, HeatmapFilter filter,
                                  const Calendar& calendar);

struct CellColour {
    model::Colour colour{};
    double opacity = 1;
};

inline constexpr int highestLevel = 4;

/// 0 for a day without tokens, else 1 to 4 by its share of the maximum.
[[nodiscard]] int level(std::int64_t total, std::int64_t maximum);

/// The fill of a cell of one level; level 0 is the empty colour of the scheme.
[[nodiscard]] CellColour levelColour(int level, HeatmapFilter filter, model::ColourScheme scheme);

/// The fill of one day that is not in the future.
[[nodiscard]] CellColour cellColour(QDate day, const std::map<QDate, std::int64_t>& totals,
                                    std::int64_t maximum, HeatmapFilter filter,
                                    model::ColourScheme scheme);

} // namespace tallyvane::history
