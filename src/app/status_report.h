#pragma once

#include "app/terminal.h"
#include "model/quota_snapshot.h"
#include "model/weekday_time_format.h"

#include <QtCore/QString>

namespace tallyvane::app {

/// The snapshot with one entry for each provider, or for `only`; an entry that is missing is a
/// placeholder. The foreign texts are fit for a terminal.
[[nodiscard]] model::QuotaSnapshot
shownSnapshot(const model::QuotaSnapshot& snapshot,
              std::optional<model::AIProvider> only = std::nullopt);

/// Human-readable figures: a heading and a line per quota window for each entry.
[[nodiscard]] QString statusText(const model::QuotaSnapshot& snapshot, model::Timestamp now,
                                 const model::WeekdayTimeFormat& weekdayTime, Palette palette);

/// One line of JSON as Waybar's custom modules take it (waybar-custom(5)): "text" the lowest
/// five-hour percentage left, "tooltip" a line per provider and one on what will run out before its
/// reset, "percentage" the same number, absent without a figure, "class" one of "ok", "low" (below
/// 25), "stale" (not refreshed for a quarter of an hour, stored in the future, or the figure's
/// provider is pending) and "none" (no figure).
[[nodiscard]] QString waybarLine(const model::QuotaSnapshot& snapshot, model::Timestamp now);

} // namespace tallyvane::app
