#include "history/heatmap.h"

#include "history/calendar_days.h"

namespace tallyvane::history {

namespace {

constexpr int daysPerWeek = 7;
constexpr std::array levelOpacities{0.0, 0.32, 0.52, 0.74, 1.0};
constexpr model::Colour totalColour{.red = 0.2, .green = 0.78, .blue = 0.35};
constexpr model::Colour emptyColour{.red = 120. / 255, .green = 120. / 255, .blue = 128. / 255};

/// The provider selected by a filter; nothing for both.
std::optional<model::AIProvider> only(HeatmapFilter filter) {
    switch (filter) {
    case HeatmapFilter::codex:
        return model::AIProvider::codex;
    case HeatmapFilter::claude:
        return model::AIProvider::claude;
    case HeatmapFilter::total:
        break;
    }
    return std::nullopt;
}

} // namespace

std::vector<WeekColumn> heatmapColumns(int weeks, const Calendar& calendar, model::Timestamp now) {
    Q_ASSERT(weeks >= 0);
    const QDate today = localDay(now, calendar.zone);
    const int intoWeek = (today.dayOfWeek() - calendar.firstWeekday + daysPerWeek) % daysPerWeek;
    QDate day = today.addDays(-intoWeek - daysPerWeek * (weeks - 1));
    std::vector<WeekColumn> columns(static_cast<std::size_t>(weeks));
    for (WeekColumn& column : columns) {
        for (DayCell& cell : column) {
            cell = {.day = day, .isFuture = day > today};
            day = day.addDays(1);
        }
    }
    return columns;
}

DayTotals dayTotals(const UsageHistory& history, HeatmapFilter filter, const Calendar& calendar) {
    DayTotals totals;
    for (const UsageHistoryPoint& point : history.points) {
        if (only(filter).value_or(point.provider) == point.provider) {
            std::int64_t& total = totals.byDay[localDay(point.date, calendar.zone)];
            total = addTokens(total, point.estimatedLocalTokens);
        }
    }
    for (const auto& [day, total] : totals.byDay) {
        totals.maximum = std::max(totals.maximum, total);
    }
    return totals;
}

int level(std::int64_t total, std::int64_t maximum) {
    if (total < 1) {
        return 0;
    }
    const double ratio = static_cast<double>(total) / static_cast<double>(maximum);
    return ratio < 0.25 ? 1 : ratio < 0.5 ? 2 : ratio < 0.75 ? 3 : highestLevel;
}

int cellLevel(QDate day, const DayTotals& totals) {
    const auto total = totals.byDay.find(day);
    return total != totals.byDay.end() ? level(total->second, totals.maximum) : 0;
}

CellColour levelColour(int level, HeatmapFilter filter, model::ColourScheme scheme) {
    if (level == 0) {
        return {.colour = emptyColour, .opacity = scheme == model::ColourScheme::dark ? 0.4 : 0.16};
    }
    const auto provider = only(filter);
    return {.colour = provider ? model::accentColour(*provider) : totalColour,
            .opacity = levelOpacities[static_cast<std::size_t>(level)]};
}

CellColour cellColour(QDate day, const std::map<QDate, std::int64_t>& totals, std::int64_t maximum,
                      HeatmapFilter filter, model::ColourScheme scheme) {
    const auto total = totals.find(day);
    return levelColour(total != totals.end() ? level(total->second, maximum) : 0, filter, scheme);
}

} // namespace tallyvane::history
