#pragma once

#include "model/timestamp.h"

#include <QtCore/QTimeZone>

namespace tallyvane::model {

/// What a clock on the wall shows, by the Gregorian calendar.
using LocalTime = std::chrono::local_time<std::chrono::microseconds>;

/// The zone of the user's days and times of day.
class LocalZone {
public:
    /// The one that the C library takes from TZ or else from /etc/localtime, whatever form tzset(3)
    /// allows: so this program and date(1) always agree. UTC where those name no zone. Follows
    /// /etc/localtime when that changes.
    [[nodiscard]] static LocalZone ofSystem() { return LocalZone(); }

    /// A zone of the tz database; UTC when it is not valid.
    explicit LocalZone(const QTimeZone& zone) : m_zone(zone.isValid() ? zone : QTimeZone::utc()) {}

    [[nodiscard]] LocalTime localTime(Timestamp timestamp) const;

private:
    LocalZone() = default;

    std::optional<QTimeZone> m_zone; ///< nothing for the C library's
};

} // namespace tallyvane::model
