#pragma once

#include "model/local_zone.h"

#include <QtCore/QDate>

/// Days of the Gregorian calendar in a time zone.
namespace tallyvane::history {

[[nodiscard]] QDate localDay(model::Timestamp moment, const model::LocalZone& zone);

/// The first moment of the day, even if a clock change skips or repeats midnight.
[[nodiscard]] model::Timestamp startOfDay(QDate day, const model::LocalZone& zone);

/// The same time of day, `days` calendar days later. May be off by an hour within an hour of a
/// clock change.
[[nodiscard]] model::Timestamp addDays(model::Timestamp moment, int days,
                                       const model::LocalZone& zone);

} // namespace tallyvane::history
