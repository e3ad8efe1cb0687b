#pragma once

#include "model/quota_snapshot.h"
#include "model/weekday_time_format.h"

#include <QtCore/QString>

namespace tallyvane::app {

enum class Palette { plain, ansi };

/// Human-readable figures: a heading and a line per quota window for each provider.
[[nodiscard]] QString statusText(const model::QuotaSnapshot& snapshot, model::Timestamp now,
                                 const model::WeekdayTimeFormat& weekdayTime, Palette palette);

/// One line of JSON as Waybar's custom modules take it (waybar-custom(5)): "text" the lowest
/// five-hour percentage left, "tooltip" a line per provider, "percentage" the same number, "class"
/// one of "ok", "low" (below 25), "stale" (not refreshed for a quarter of an hour, or the figure's
/// provider is pending) and "none" (no figure).
[[nodiscard]] QString waybarLine(const model::QuotaSnapshot& snapshot, model::Timestamp now);

} // namespace tallyvane::app
