#pragma once

#include "history/usage_history.h"
#include "model/local_zone.h"

#include <QtCore/QDate>

/// The data of the usage history's bar chart. Pure functions.
namespace tallyvane::history {

enum class HistoryMetric { percent, tokens };
enum class HistoryGranularity { daily, monthly };

} // namespace tallyvane::history

namespace tallyvane::model {

template <>
inline constexpr std::array rawValues<history::HistoryMetric>{QLatin1StringView{"%"},
                                                              QLatin1StringView{"Tokens"}};
template <>
inline constexpr std::array rawValues<history::HistoryGranularity>{QLatin1StringView{"Daily"},
                                                                   QLatin1StringView{"Monthly"}};

} // namespace tallyvane::model

namespace tallyvane::history {

/// The user's Gregorian calendar.
struct Calendar {
    model::LocalZone zone;
    Qt::DayOfWeek firstWeekday = Qt::Monday;
};

/// One segment of a bar: one provider's use in one bucket.
struct ChartPoint {
    QDate date; ///< the bucket: a day, or the first day of a month
    model::AIProvider provider = model::AIProvider::codex;
    double quota = 0; ///< percentage points of the weekly quota
    std::int64_t tokens = 0;

    bool operator==(const ChartPoint&) const = default;
};

/// The segments of the last 30 days or of all months, sorted by bucket and then provider. Omits
/// providers without a point in a bucket.
[[nodiscard]] std::vector<ChartPoint> chartPoints(const UsageHistory& history,
                                                  HistoryGranularity granularity,
                                                  const Calendar& calendar, model::Timestamp now);

/// A segment's height in the unit of the metric.
[[nodiscard]] double height(const ChartPoint& point, HistoryMetric metric);

/// The ends of the chart's horizontal axis.
struct DateDomain {
    QDate start;
    QDate end;

    bool operator==(const DateDomain&) const = default;
};

/// The last 30 days and the next three, or the last six months.
[[nodiscard]] DateDomain xDomain(HistoryGranularity granularity, const Calendar& calendar,
                                 model::Timestamp now);

/// The marks of the horizontal axis: every 7 days or every month from `start`, before `end`.
[[nodiscard]] std::vector<QDate> axisDates(HistoryGranularity granularity,
                                           const DateDomain& domain);

/// About five round, equidistant values for the vertical axis, from 0 to the first one that is not
/// below `maximum`, or to 1 if `maximum` is not positive.
[[nodiscard]] std::vector<double> axisValues(double maximum);

/// The bucket whose start is nearest to `moment`, the earlier one of two. Nothing without points.
[[nodiscard]] std::optional<QDate> nearestBucket(const std::vector<ChartPoint>& points,
                                                 const Calendar& calendar, model::Timestamp moment);

} // namespace tallyvane::history
