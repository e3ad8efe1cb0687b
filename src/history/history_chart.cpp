#include "history/history_chart.h"

#include "history/calendar_days.h"

#include <cmath>
#include <map>

namespace tallyvane::history {

namespace {

constexpr int dailyReach = 29; // days before today
constexpr int dailyRoom = 3;   // days after today
constexpr int monthlyReach = 5;
constexpr int dailyStride = 7;
constexpr int axisSteps = 4;

QDate startOfMonth(QDate day) {
    return {day.year(), day.month(), 1};
}

} // namespace

std::vector<ChartPoint> chartPoints(const UsageHistory& history, HistoryGranularity granularity,
                                    const Calendar& calendar, model::Timestamp now) {
    const bool isDaily = granularity == HistoryGranularity::daily;
    const QDate start = xDomain(granularity, calendar, now).start;
    std::map<std::pair<QDate, model::AIProvider>, ChartPoint> segments;
    for (const UsageHistoryPoint& point : history.points) {
        const QDate day = localDay(point.date, calendar.zone);
        if (isDaily && day < start) {
            continue;
        }
        const QDate bucket = isDaily ? day : startOfMonth(day);
        ChartPoint& segment = segments[{bucket, point.provider}];
        segment.date = bucket;
        segment.provider = point.provider;
        segment.quota += point.estimatedQuotaConsumed;
        segment.tokens = addTokens(segment.tokens, point.estimatedLocalTokens);
    }
    std::vector<ChartPoint> points;
    points.reserve(segments.size());
    for (const auto& [key, segment] : segments) {
        points.push_back(segment);
    }
    return points;
}

double height(const ChartPoint& point, HistoryMetric metric) {
    return metric == HistoryMetric::percent ? point.quota : static_cast<double>(point.tokens);
}

DateDomain xDomain(HistoryGranularity granularity, const Calendar& calendar, model::Timestamp now) {
    const QDate today = localDay(now, calendar.zone);
    if (granularity == HistoryGranularity::daily) {
        return {.start = today.addDays(-dailyReach), .end = today.addDays(dailyRoom)};
    }
    const QDate month = startOfMonth(today);
    return {.start = month.addMonths(-monthlyReach), .end = month.addMonths(1)};
}

std::vector<QDate> axisDates(HistoryGranularity granularity, const DateDomain& domain) {
    std::vector<QDate> dates;
    for (QDate date = domain.start; date < domain.end;
         date = granularity == HistoryGranularity::daily ? date.addDays(dailyStride)
                                                         : date.addMonths(1)) {
        dates.push_back(date);
    }
    return dates;
}

std::vector<double> axisValues(double maximum, HistoryMetric metric) {
    if (maximum <= 0) {
        return {0};
    }
    // Larger values leave no room for a step above them.
    const double top = std::min(maximum, 1e300);
    const double rough = top / axisSteps;
    const double magnitude = std::pow(10, std::floor(std::log10(rough)));
    double step = 10 * magnitude;
    for (const double factor : {5., 2., 1.}) {
        if (rough <= factor * magnitude) {
            step = factor * magnitude;
        }
    }
    step = std::max(step, metric == HistoryMetric::tokens ? 1 : 0.01);
    std::vector<double> values;
    // Tolerates rounding: 0.1 + 0.2 is slightly more than three steps of 0.1.
    const int count = static_cast<int>(std::ceil(top / step - 1e-9));
    for (int i = 0; i <= count; ++i) {
        values.push_back(i * step);
    }
    return values;
}

std::optional<QDate> nearestBucket(const std::vector<ChartPoint>& points, const Calendar& calendar,
                                   model::Timestamp moment) {
    std::optional<QDate> nearest;
    auto shortest = model::Timestamp::duration::max();
    for (const ChartPoint& point : points) {
        const auto distance = std::chrono::abs(startOfDay(point.date, calendar.zone) - moment);
        if (distance < shortest) {
            shortest = distance;
            nearest = point.date;
        }
    }
    return nearest;
}

} // namespace tallyvane::history
