#include "model/quota_display.h"

#include "model/message.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tallyvane::model {

namespace {

using namespace std::chrono;

class Quota {
    Q_DECLARE_TR_FUNCTIONS(Quota)
};

struct ProviderDisplay {
    QLatin1StringView name;
    Colour accent{};
    QLatin1StringView usagePage;
};

/// In the order of AIProvider.
constexpr std::array displays{
    ProviderDisplay{QLatin1StringView{"Codex"}, Colour{0.38, 0.37, 0.93},
                    QLatin1StringView{"https://chatgpt.com/settings/usage"}},
    ProviderDisplay{QLatin1StringView{"Claude"}, Colour{0.91, 0.42, 0.2},
                    QLatin1StringView{"https://claude.ai/settings/usage"}}};
static_assert(displays.size() == allCases<AIProvider>.size());

const ProviderDisplay& displayOf(AIProvider provider) {
    return displays[static_cast<std::size_t>(std::to_underlying(provider))];
}

QString pendingText(const ProviderQuotaSnapshot& entry) {
    return entry.statusMessage ? translated(*entry.statusMessage) : Quota::tr("Sync pending");
}

int wholeRemaining(const std::optional<QuotaWindowSnapshot>& window) {
    return window ? static_cast<int>(remainingPercent(*window)) : 0;
}

} // namespace

Colour accentColour(AIProvider provider) {
    return displayOf(provider).accent;
}

QString usagePage(AIProvider provider) {
    return displayOf(provider).usagePage;
}

QString displayName(AIProvider provider) {
    return displayOf(provider).name;
}

double remainingPercent(const QuotaWindowSnapshot& window) {
    return std::clamp(100.0 - window.usedPercent, 0.0, 100.0);
}

std::optional<int> lowestRemainingPercent(const QuotaSnapshot& snapshot) {
    std::optional<int> lowest;
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        if (entry.fiveHour) {
            const int remaining = static_cast<int>(std::lround(remainingPercent(*entry.fiveHour)));
            lowest = std::min(lowest.value_or(remaining), remaining);
        }
    }
    return lowest;
}

QString summaryText(const ProviderQuotaSnapshot& entry) {
    if (entry.syncState == QuotaSyncState::pending) {
        return pendingText(entry);
    }
    //: What is left in the five-hour window and in the week, as short as possible
    return Quota::tr("5H %1%  \u00B7  WK %2%")
        .arg(wholeRemaining(entry.fiveHour))
        .arg(wholeRemaining(entry.week));
}

QString percentText(int percent) {
    //: A percentage
    return Quota::tr("%1%").arg(percent);
}

QString labelText(const QuotaSnapshot& snapshot) {
    const std::optional<int> lowest = lowestRemainingPercent(snapshot);
    return lowest ? percentText(*lowest) : QString();
}

QStringList summaryLines(const QuotaSnapshot& snapshot) {
    QStringList lines;
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        //: %1 is "Codex" or "Claude", %2 its figures
        lines.append(Quota::tr("%1: %2").arg(displayName(entry.provider), summaryText(entry)));
    }
    return lines;
}

QStringList runOutTexts(const ProviderQuotaSnapshot& entry, Timestamp now,
                        const RecentRates& recent) {
    QStringList parts;
    for (const QuotaPeriod period : allCases<QuotaPeriod>) {
        const auto known = pace(entry, period, now, recent);
        if (known && known->runsOutAt) {
            //: The five-hour window and the weekly one, as short as possible
            const QString name =
                period == QuotaPeriod::fiveHour ? Quota::tr("5H") : Quota::tr("WK");
            //: %1 is "5H", %2 a time such as "in 2h 14m"
            const QString text = parts.isEmpty() ? Quota::tr("%1 runs out %2") : Quota::tr("%1 %2");
            parts << text.arg(name, countdownText(*known->runsOutAt - now));
        }
    }
    return parts;
}

QString resetText(std::optional<Timestamp> resetsAt, const ProviderQuotaSnapshot& entry,
                  Timestamp now, const WeekdayTimeFormat& weekdayTime) {
    switch (entry.syncState) {
    case QuotaSyncState::pending:
        return pendingText(entry);
    case QuotaSyncState::unavailable:
        return Quota::tr("Not available");
    case QuotaSyncState::current:
        break;
    }
    if (!resetsAt) {
        return Quota::tr("Reset unknown");
    }
    const auto left = *resetsAt - now;
    if (left <= microseconds{0}) {
        return pendingText(entry);
    }
    if (left >= days{1}) {
        return weekdayTime.format(*resetsAt);
    }
    return countdownText(left);
}

QString countdownText(Timestamp::duration left) {
    const auto wholeDays = left / days{1};
    const auto hoursLeft = left / hours{1} % 24;
    if (wholeDays > 0) {
        //: Days and hours, as short as possible
        return Quota::tr("in %1d %2h").arg(wholeDays).arg(hoursLeft);
    }
    // At least "1m", also on whole hours.
    const auto minutesLeft = std::max<std::int64_t>(left / minutes{1} % 60, 1);
    return hoursLeft > 0 ? Quota::tr("in %1h %2m").arg(hoursLeft).arg(minutesLeft)
                         : Quota::tr("in %1m").arg(minutesLeft);
}

QString ageText(std::optional<Timestamp> date, Timestamp now) {
    if (!date) {
        return Quota::tr("never");
    }
    const auto age = now - *date;
    if (age < minutes{1}) {
        return Quota::tr("just now");
    }
    if (age < hours{1}) {
        return Quota::tr("%n min ago", nullptr, static_cast<int>(age / minutes{1}));
    }
    if (age < days{1}) {
        return Quota::tr("%n hr ago", nullptr, static_cast<int>(age / hours{1}));
    }
    const auto wholeDays = std::min<std::int64_t>(age / days{1}, std::numeric_limits<int>::max());
    return Quota::tr("%n d ago", nullptr, static_cast<int>(wholeDays));
}

} // namespace tallyvane::model
