#include "providers/claude/retry_after.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QTimeZone>

#include <algorithm>

namespace tallyvane::providers {

namespace {

using std::chrono::seconds;

std::optional<seconds> untilDate(const QByteArray& header, model::Timestamp now) {
    const QDateTime local = QLocale::c().toDateTime(
        QString::fromLatin1(header), QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
    const QDateTime date(local.date(), local.time(), QTimeZone::utc());
    if (!date.isValid()) {
        return std::nullopt;
    }
    const model::Timestamp moment{seconds{date.toSecsSinceEpoch()}};
    return std::chrono::ceil<seconds>(moment - now);
}

std::optional<seconds> statedSeconds(const QByteArray& header) {
    const bool isNumber = !header.isEmpty() &&
                          std::ranges::all_of(header, [](char c) { return c >= '0' && c <= '9'; });
    bool fits = false;
    const seconds stated{header.toLongLong(&fits)};
    return isNumber ? std::optional(fits ? stated : seconds::max()) : std::nullopt;
}

} // namespace

seconds retryAfter(const QByteArray& header, model::Timestamp now) {
    constexpr seconds longest = std::chrono::hours{1};
    const auto stated = statedSeconds(header);
    const auto time = stated ? stated : untilDate(header, now);
    return std::clamp(time.value_or(seconds{0}), seconds{0}, longest);
}

} // namespace tallyvane::providers
