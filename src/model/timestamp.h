#pragma once

#include <QtCore/QString>

#include <chrono>
#include <optional>

namespace tallyvane::model {

/// A moment in UTC. Every timestamp that this program makes or reads lies in the years 0000 to
/// 9999, so that it has an RFC 3339 form.
using Timestamp = std::chrono::sys_time<std::chrono::microseconds>;

enum class FractionalSeconds { rejected, allowed };

/// Reads an RFC 3339 date-time such as "2025-01-31T14:05:00Z" or "2025-01-31T15:05:00.25+01:00":
/// upper-case T and Z, a zone designator, every field in its range. Digits past the microsecond
/// are dropped. Nothing when `text` is anything else.
[[nodiscard]] std::optional<Timestamp> parseTimestamp(QStringView text, FractionalSeconds fraction);

/// Writes "2025-01-31T14:05:00Z": UTC, whole seconds, rounded down.
[[nodiscard]] QString formatTimestamp(Timestamp timestamp);

/// The seconds since 1970-01-01T00:00:00Z as the shortest decimal that reads back as the same
/// double, always with a fraction: "1738281600.0".
[[nodiscard]] QString unixSecondsText(Timestamp timestamp);

/// The moment `seconds` after 1970-01-01T00:00:00Z; nothing when it is not finite or lies outside
/// the years 0000 to 9999.
[[nodiscard]] std::optional<Timestamp> timestampFromUnixSeconds(double seconds);

} // namespace tallyvane::model
