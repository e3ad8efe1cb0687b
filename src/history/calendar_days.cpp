#include "history/calendar_days.h"

namespace tallyvane::history {

namespace {

model::Timestamp timestamp(const QDateTime& time) {
    return model::Timestamp{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
}

} // namespace

QDate localDay(model::Timestamp moment, const QTimeZone& zone) {
    return model::localTime(moment, zone).date();
}

model::Timestamp startOfDay(QDate day, const QTimeZone& zone) {
    return timestamp(day.startOfDay(zone));
}

model::Timestamp addDays(model::Timestamp moment, int days, const QTimeZone& zone) {
    return timestamp(model::localTime(moment, zone).addDays(days));
}

} // namespace tallyvane::history
