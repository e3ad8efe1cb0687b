#pragma once

#include "model/local_zone.h"

#include <QtCore/QDate>

/// Days of the Gregorian calendar in a time zone. Where a change of the clocks skips midnight, a
/// day starts at its first moment.
namespace tallyvane::history {

[[nodiscard]] QDate localDay(model::Timestamp moment, const model::LocalZone& zone);

[[nodiscard]] model::Timestamp startOfDay(QDate day, const model::LocalZone& zone);

/// The same time of day, `days` calendar days later; within an hour of a change of the clocks it
/// may be an hour off.
[[nodiscard]] model::Timestamp addDays(model::Timestamp moment, int days,
                                       const model::LocalZone& zone);

} // namespace tallyvane::history
