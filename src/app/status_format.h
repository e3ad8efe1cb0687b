#pragma once

#include "model/quota_snapshot.h"
#include "model/weekday_time_format.h"

#include <QtCore/QString>

#include <expected>

namespace tallyvane::app {

/// The user's `format` with its fields, such as "{claude.week.reset}", replaced by what the
/// snapshot holds, or by "-" where it holds nothing; "{{" and "}}" stand for braces. helpText()
/// lists the fields. Values contain no character that a status bar, a prompt or a markup
/// interprets. The error is a sentence for the user that names the mistake; it does not depend on
/// the snapshot.
[[nodiscard]] std::expected<QString, QString>
formattedStatus(const QString& format, const model::QuotaSnapshot& snapshot, model::Timestamp now,
                const model::WeekdayTimeFormat& weekdayTime);

} // namespace tallyvane::app
