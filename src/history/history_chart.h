#pragma once

#include "history/usage_history.h"
#include "model/local_zone.h"

#include <QtCore/QDate>

/// The data of the usage history's bar chart; pure functions.
namespace tallyvane::history {

enum class HistoryMetric { percent, tokens };
enum class HistoryGranularity { daily, monthly };

/// The user's calendar: Gregorian, in a time zone, with weeks that start on the locale's day.
struct Calendar {
    model::LocalZone zone;
    Qt::DayOfWeek firstWeekday = Qt::Monday;
};

/// One segment of a bar: what one provider used in one bucket.
struct ChartPoint {
    QDate date; ///< the bucket: a day, or the first day of a month
    model::AIProvider provider = model::AIProvider::codex;
    double quota = 0; ///< percentage points of the weekly quota
    std::int64_t tokens = 0;

    bool operator==(const ChartPoint&) const = default;
};

/// The segments of the last 30 days, or of every month, oldest bucket first and `codex` before
/// `claude` within one. A provider without a point in a bucket has no segment there.
[[nodiscard]] std::vector<ChartPoint> chartPoints(const UsageHistory& history,
                                                  HistoryGranularity granularity,
                                                  const Calendar& calendar, model::Timestamp now);

/// A segment's height in its metric's own unit.
[[nodiscard]] double height(const ChartPoint& point, HistoryMetric metric);

/// The ends of the chart's horizontal axis.
struct DateDomain {
    QDate start;
    QDate end;

    bool operator==(const DateDomain&) const = default;
};

/// 30 days and room for three more, or six months.
[[nodiscard]] DateDomain xDomain(HistoryGranularity granularity, const Calendar& calendar,
                                 model::Timestamp now);

/// Where the horizontal axis has marks: every 7 days or every month, from its start, before its
/// end.
[[nodiscard]] std::vector<QDate> axisDates(HistoryGranularity granularity,
                                           const DateDomain& domain);

/// Round values for the vertical axis: 0, the step, and so on up to the first that is not below
/// `maximum`; about five, but no step is below the smallest that labels of `metric` tell apart.
/// Only 0 without anything to show.
[[nodiscard]] std::vector<double> axisValues(double maximum, HistoryMetric metric);

/// The bucket whose start lies nearest to a moment on the axis; the earlier of two that are
/// equally near, and nothing when there are no points.
[[nodiscard]] std::optional<QDate> nearestBucket(const std::vector<ChartPoint>& points,
                                                 const Calendar& calendar, model::Timestamp moment);

} // namespace tallyvane::history
