#pragma once

#include "providers/quota_client.h"

#include <QtCore/QJsonObject>

namespace tallyvane::providers {

/// Reads the reply to "account/rateLimits/read" of the Codex application server (seen in CLI
/// 0.169): result.rateLimits holds "planType" and the windows "primary" and "secondary", each null
/// or {"usedPercent": percent, "windowDurationMins": minutes, "resetsAt": Unix seconds}, the
/// latter two optional. A window of up to 6 hours is the five-hour one, a window of at least 100
/// hours the weekly one; failing that, primary and secondary are used respectively. Fails if the
/// reply has an "error" object or no limits.
[[nodiscard]] QuotaResult parseRateLimitsReply(const QJsonObject& reply, model::Timestamp now);

} // namespace tallyvane::providers
