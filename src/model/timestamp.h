#pragma once

#include <QtCore/QString>

#include <chrono>
#include <optional>

namespace tallyvane::model {

/// A moment in UTC, always in the years 0000 to 9999, which RFC 3339 can express.
using Timestamp = std::chrono::sys_time<std::chrono::microseconds>;

enum class FractionalSeconds { rejected, allowed };

/// Parses an RFC 3339 date-time such as "2025-01-31T14:05:00Z" or "2025-01-31T15:05:00.25+01:00".
/// The T and Z must be upper case and every field in range. Truncates to microseconds.
[[nodiscard]] std::optional<Timestamp> parseTimestamp(QStringView text, FractionalSeconds fraction);

/// Formats as "2025-01-31T14:05:00Z": UTC, rounded down to whole seconds.
[[nodiscard]] QString formatTimestamp(Timestamp timestamp);

/// The seconds since 1970-01-01T00:00:00Z as the shortest decimal that round-trips through a
/// double, always with a fraction: "1738281600.0".
[[nodiscard]] QString unixSecondsText(Timestamp timestamp);

/// The moment `seconds` after 1970-01-01T00:00:00Z; nothing when that is not a Timestamp.
[[nodiscard]] std::optional<Timestamp> timestampFromUnixSeconds(double seconds);

} // namespace tallyvane::model
