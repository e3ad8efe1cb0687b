#pragma once

#include "history/usage_history.h"
#include "model/local_zone.h"
#include "model/quota_snapshot.h"

/// Fixed, plausible figures for demonstrations, with dates relative to `now`.
namespace tallyvane::core {

[[nodiscard]] model::QuotaSnapshot fixtureSnapshot(model::Timestamp now,
                                                   const model::LocalZone& zone);

/// Fourteen days of all providers, newest first.
[[nodiscard]] history::UsageHistory fixtureHistory(model::Timestamp now,
                                                   const model::LocalZone& zone);

} // namespace tallyvane::core
