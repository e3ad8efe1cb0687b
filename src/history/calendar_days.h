#pragma once

#include "model/timestamp.h"

/// Days of the Gregorian calendar in a time zone. Where a change of the clocks skips midnight, a
/// day starts at its first moment.
namespace tallyvane::history {

[[nodiscard]] QDate localDay(model::Timestamp moment, const QTimeZone& zone);

[[nodiscard]] model::Timestamp startOfDay(QDate day, const QTimeZone& zone);

/// The same time of day, `days` calendar days later.
[[nodiscard]] model::Timestamp addDays(model::Timestamp moment, int days, const QTimeZone& zone);

} // namespace tallyvane::history
