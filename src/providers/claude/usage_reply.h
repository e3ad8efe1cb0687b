#pragma once

#include "model/quota_snapshot.h"
#include "providers/claude/claude_quota_error.h"

#include <QtCore/QByteArray>

#include <expected>
#include <optional>

namespace tallyvane::providers {

/// Reads the body of a usage reply, as the service sent it in 2026:
///
///     {"five_hour": {"utilization": 33.0, "resets_at": "2026-04-11T07:00:00.528743+00:00"},
///      "seven_day": {...}, ...}
///
/// `utilization` is in percent; `resets_at` may be null. A window without a number counts as 0 %.
/// `planIdentifier` is that of the sign-in record. Fails with `malformedResponse` unless the body
/// is a JSON object.
[[nodiscard]] std::expected<model::ProviderQuotaSnapshot, ClaudeQuotaError>
parseUsageReply(const QByteArray& body, const std::optional<QString>& planIdentifier,
                model::Timestamp now);

} // namespace tallyvane::providers
