#pragma once

#include "history/usage_history.h"
#include "model/quota_snapshot.h"

#include <QtCore/QTimeZone>

/// Fixed, plausible figures to look at and to demonstrate with, dated from the moment of the call.
namespace tallyvane::core {

[[nodiscard]] model::QuotaSnapshot fixtureSnapshot(model::Timestamp now, const QTimeZone& zone);

/// Fourteen days of both providers, newest first.
[[nodiscard]] history::UsageHistory fixtureHistory(model::Timestamp now, const QTimeZone& zone);

} // namespace tallyvane::core
