#include "history/calendar_days.h"

namespace tallyvane::history {

namespace {

using std::chrono::milliseconds;

QDateTime localTime(model::Timestamp moment, const QTimeZone& zone) {
    const auto sinceEpoch = std::chrono::floor<milliseconds>(moment.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(), zone);
}

model::Timestamp timestamp(const QDateTime& time) {
    return model::Timestamp{milliseconds{time.toMSecsSinceEpoch()}};
}

} // namespace

QDate localDay(model::Timestamp moment, const QTimeZone& zone) {
    return localTime(moment, zone).date();
}

model::Timestamp startOfDay(QDate day, const QTimeZone& zone) {
    return timestamp(day.startOfDay(zone));
}

model::Timestamp addDays(model::Timestamp moment, int days, const QTimeZone& zone) {
    return timestamp(localTime(moment, zone).addDays(days));
}

} // namespace tallyvane::history
