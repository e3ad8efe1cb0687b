#pragma once

#include "model/quota_snapshot.h"
#include "providers/codex/codex_error.h"

#include <QtCore/QJsonObject>

#include <expected>

namespace tallyvane::providers {

/// Reads the reply to "account/rateLimits/read" of the Codex application server (seen in CLI
/// 0.169): result.rateLimits holds "planType" and the windows "primary" and "secondary", each null
/// or {"usedPercent": percent, "windowDurationMins": minutes, "resetsAt": Unix seconds}, the
/// latter two optional. A window of up to 6 hours is the five-hour one, one of at least 100 hours
/// the weekly one; without such, primary and secondary stand in for them. A reply with the object
/// "error" is a `failed`.
[[nodiscard]] std::expected<model::ProviderQuotaSnapshot, CodexError>
parseRateLimitsReply(const QJsonObject& reply, model::Timestamp now);

} // namespace tallyvane::providers
