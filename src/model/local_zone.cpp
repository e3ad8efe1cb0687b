#include "model/local_zone.h"

#include <cstdlib>
#include <ctime>

namespace tallyvane::model {

using namespace std::chrono;

namespace {

using LocalSeconds = local_time<seconds>;

/// Nothing when the C library has no fields for that moment.
std::optional<LocalSeconds> systemsLocalTime(sys_seconds moment) {
    const std::time_t time = moment.time_since_epoch().count();
    std::tm fields{};
    // localtime_r need not notice that /etc/localtime has changed. Told twice of a zone in TZ,
    // glibc may take the default rules of summer time for others.
    if (std::getenv("TZ") == nullptr) {
        ::tzset();
    }
    if (::localtime_r(&time, &fields) == nullptr) {
        return std::nullopt;
    }
    const auto date = year{fields.tm_year + 1900} / (fields.tm_mon + 1) / fields.tm_mday;
    return local_days{date} + hours{fields.tm_hour} + minutes{fields.tm_min} +
           seconds{fields.tm_sec};
}

LocalSeconds localTimeIn(const QTimeZone& zone, sys_seconds moment) {
    const auto sinceEpoch = moment.time_since_epoch();
    const auto time = QDateTime::fromSecsSinceEpoch(sinceEpoch.count(), zone);
    return LocalSeconds{sinceEpoch + seconds{time.offsetFromUtc()}};
}

} // namespace

LocalTime LocalZone::localTime(Timestamp timestamp) const {
    const auto second = floor<seconds>(timestamp);
    const LocalSeconds shown =
        m_zone ? localTimeIn(*m_zone, second)
               : systemsLocalTime(second).value_or(LocalSeconds{second.time_since_epoch()});
    return shown + (timestamp - second);
}

} // namespace tallyvane::model
