#include "history/calendar_days.h"

namespace tallyvane::history {

using namespace std::chrono;
using model::LocalTime;
using model::Timestamp;

namespace {

constexpr qint64 julianDayOfEpoch = 2'440'588;

/// More than any offset from UTC: tzset(3) allows a day, and another for summer time.
constexpr hours furthest{49};

} // namespace

QDate localDay(Timestamp moment, const model::LocalZone& zone) {
    const auto day = floor<days>(zone.localTime(moment)).time_since_epoch();
    return QDate::fromJulianDay(julianDayOfEpoch + day.count());
}

Timestamp startOfDay(QDate day, const model::LocalZone& zone) {
    const LocalTime midnight = local_days{days{day.toJulianDay() - julianDayOfEpoch}};
    const auto hasBegun = [&](Timestamp moment) { return zone.localTime(moment) >= midnight; };

    const Timestamp midnightUtc{midnight.time_since_epoch()};
    const auto offset = zone.localTime(midnightUtc) - midnight;
    if (hasBegun(midnightUtc - offset) && !hasBegun(midnightUtc - offset - seconds{1})) {
        return midnightUtc - offset;
    }
    // A clock change on that day: search for the first moment.
    Timestamp before = midnightUtc - furthest;
    Timestamp after = midnightUtc + furthest;
    while (after - before > seconds{1}) {
        const Timestamp middle = before + floor<seconds>((after - before) / 2);
        (hasBegun(middle) ? after : before) = middle;
    }
    return after;
}

Timestamp addDays(Timestamp moment, int days, const model::LocalZone& zone) {
    const std::chrono::days distance{days};
    const auto shown = zone.localTime(moment + distance) - zone.localTime(moment);
    return moment + distance - (shown - distance);
}

} // namespace tallyvane::history
