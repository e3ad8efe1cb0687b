#pragma once

#include "history/usage_history.h"
#include "model/local_zone.h"
#include "model/quota_snapshot.h"

/// Fixed, plausible figures to look at and to demonstrate with, dated from the moment of the call.
namespace tallyvane::core {

[[nodiscard]] model::QuotaSnapshot fixtureSnapshot(model::Timestamp now,
                                                   const model::LocalZone& zone);

/// Fourteen days of both providers, newest first.
[[nodiscard]] history::UsageHistory fixtureHistory(model::Timestamp now,
                                                   const model::LocalZone& zone);

} // namespace tallyvane::core
