#pragma once

#include "history/usage_history.h"
#include "model/local_zone.h"

#include <QtCore/QString>

namespace tallyvane::history {

/// The history as comma-separated values (RFC 4180): a line per point, in the history's order,
/// below one with the columns' names. These are "day" (in `zone`, as "2026-11-21"), "provider"
/// ("codex" or "claude"), "weekly_quota_percent" (percentage points, such as "12.5") and "tokens".
/// Numbers are written alike in all locales.
[[nodiscard]] QString csvText(const UsageHistory& history, const model::LocalZone& zone);

} // namespace tallyvane::history
