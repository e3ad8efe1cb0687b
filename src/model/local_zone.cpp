#include "model/local_zone.h"

#include <ctime>
#include <optional>

namespace tallyvane::model {

using namespace std::chrono;

namespace {

using LocalSeconds = local_time<seconds>;

/// Nothing when the year does not fit the C library's fields.
std::optional<LocalSeconds> systemLocalTime(ZoneSource source, sys_seconds moment) {
    const std::time_t time = moment.time_since_epoch().count();
    std::tm fields{};
    // localtime_r() alone does not notice changes of /etc/localtime. With TZ set, a second tzset()
    // can make glibc apply other default rules for summer time.
    if (source == ZoneSource::file) {
        ::tzset();
    }
    if (::localtime_r(&time, &fields) == nullptr) {
        return std::nullopt;
    }
    const auto date = year{fields.tm_year + 1900} / (fields.tm_mon + 1) / fields.tm_mday;
    return local_days{date} + hours{fields.tm_hour} + minutes{fields.tm_min} +
           seconds{fields.tm_sec};
}

} // namespace

LocalTime LocalZone::localTime(Timestamp timestamp) const {
    const auto second = floor<seconds>(timestamp);
    const auto sinceEpoch = second.time_since_epoch();
    LocalSeconds shown{sinceEpoch};
    if (m_zone) {
        const auto time = QDateTime::fromSecsSinceEpoch(sinceEpoch.count(), *m_zone);
        shown += seconds{time.offsetFromUtc()};
    } else {
        shown = systemLocalTime(m_source, second).value_or(shown);
    }
    return shown + (timestamp - second);
}

} // namespace tallyvane::model
