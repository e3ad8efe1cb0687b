#pragma once

#include "model/timestamp.h"

#include <QtCore/QTimeZone>

#include <optional>

namespace tallyvane::model {

/// A wall-clock time in the Gregorian calendar.
using LocalTime = std::chrono::local_time<std::chrono::microseconds>;

/// Where tzset(3) finds the system's time zone: in TZ when that is set, else in /etc/localtime.
enum class ZoneSource { variable, file };

/// The time zone of the user's days and times of day.
class LocalZone {
public:
    /// The C library's zone, in any form that tzset(3) accepts, so that this program and date(1)
    /// always agree. UTC when there is no valid zone. Follows changes of /etc/localtime.
    [[nodiscard]] static LocalZone ofSystem(ZoneSource source) { return LocalZone(source); }

    /// A zone of the tz database; UTC when it is not valid.
    explicit LocalZone(const QTimeZone& zone) : m_zone(zone.isValid() ? zone : QTimeZone::utc()) {}

    [[nodiscard]] LocalTime localTime(Timestamp timestamp) const;

private:
    explicit LocalZone(ZoneSource source) : m_source(source) {}

    ZoneSource m_source = ZoneSource::file;
    std::optional<QTimeZone> m_zone; ///< nullopt: the C library's, found by m_source
};

} // namespace tallyvane::model
