#pragma once

#include "history/history_chart.h"
#include "model/quota_display.h"

#include <map>

/// The data of the calendar heatmap of tokens per day. Pure functions.
namespace tallyvane::history {

enum class HeatmapFilter { total, codex, claude };

struct DayCell {
    QDate day;
    bool isFuture = false; ///< after today; drawn transparent

    bool operator==(const DayCell&) const = default;
};

/// The days of one week, starting on the calendar's first weekday.
using WeekColumn = std::array<DayCell, 7>;

/// The last `weeks` weeks, ending with the current one. `weeks` must not be negative.
[[nodiscard]] std::vector<WeekColumn> heatmapColumns(int weeks, const Calendar& calendar,
                                                     model::Timestamp now);

struct DayTotals {
    std::map<QDate, std::int64_t> byDay;
    std::int64_t maximum = 1; ///< the largest total, at least 1
};

/// Tokens per day, of both providers or of one.
[[nodiscard]] DayTotals dayTotals(const UsageHistory& history, HeatmapFilter filter,
                                  const Calendar& calendar);

struct CellColour {
    model::Colour colour{};
    double opacity = 1;
};

inline constexpr int highestLevel = 4;

/// 0 for a day without tokens, else 1 to 4 by the share of the maximum.
[[nodiscard]] int level(std::int64_t total, std::int64_t maximum);

[[nodiscard]] int cellLevel(QDate day, const DayTotals& totals);

/// The fill of a cell of that level; level 0 is the colour of empty cells.
[[nodiscard]] CellColour levelColour(int level, HeatmapFilter filter, model::ColourScheme scheme);

/// The fill of a day's cell; not for future days.
[[nodiscard]] CellColour cellColour(QDate day, const std::map<QDate, std::int64_t>& totals,
                                    std::int64_t maximum, HeatmapFilter filter,
                                    model::ColourScheme scheme);

} // namespace tallyvane::history
