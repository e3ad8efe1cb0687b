#include "notify/low_quota_notifier.h"

#include "model/quota_display.h"
#include "model/weekday_time_format.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

namespace tallyvane::notify {

using model::QuotaPeriod;
using model::QuotaWindowSnapshot;

namespace {

const QString saidKey = QStringLiteral("lowQuotaWarnings");

/// Percent left.
constexpr int thresholds[] = {10, 25};
constexpr int noThreshold = 100;

class LowQuota {
    Q_DECLARE_TR_FUNCTIONS(Notification)
};

int thresholdReached(int left) {
    for (const int threshold : thresholds) {
        if (left <= threshold) {
            return threshold;
        }
    }
    return noThreshold;
}

QString leftText(const QString& name, QuotaPeriod period, int left) {
    //: %1 is "Codex" or "Claude", %2 the percentage
    return (period == QuotaPeriod::fiveHour ? LowQuota::tr("%1: %2 % of the five-hour quota left")
                                            //: %1 is "Codex" or "Claude", %2 the percentage
                                            : LowQuota::tr("%1: %2 % of the weekly quota left"))
        .arg(name)
        .arg(left);
}

QString runsOutText(const QString& name, QuotaPeriod period, const QString& time) {
    //: %1 is "Codex" or "Claude", %2 a time such as "16:40" or "Tue 16:40"
    return (period == QuotaPeriod::fiveHour
                ? LowQuota::tr("%1: the five-hour quota runs out at %2, before the reset")
                //: %1 is "Codex" or "Claude", %2 a time such as "16:40" or "Tue 16:40"
                : LowQuota::tr("%1: the weekly quota runs out at %2, before the reset"))
        .arg(name, time);
}

} // namespace

LowQuotaNotifier::LowQuotaNotifier(platform::NotificationCentre& centre,
                                   model::DefaultsStore& defaults, std::string locale)
    : m_centre(centre), m_defaults(defaults), m_locale(std::move(locale)) {
    load();
}

void LowQuotaNotifier::process(const model::QuotaSnapshot& snapshot, bool isWanted,
                               const NotificationSettings& settings, model::Timestamp now,
                               const model::LocalZone& zone, const model::RecentRates& recent) {
    NotificationSettings times = settings;
    times.enabled = true;
    const bool isToSay = isWanted && allows(times, now, zone);
    QStringList lines;
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        for (const QuotaPeriod period : model::allCases<QuotaPeriod>) {
            const News found = news(entry, period, now, recent);
            if (isToSay) {
                lines += texts(found, entry.provider, period, now, zone);
            }
        }
    }
    if (isWanted) {
        save();
    }
    if (!lines.isEmpty()) {
        m_centre.post({.identifier = QStringLiteral("low-") + model::unixSecondsText(now),
                       .title = QStringLiteral("Tallyvane"),
                       .body = lines.join(u'\n')});
    }
}

LowQuotaNotifier::News LowQuotaNotifier::news(const model::ProviderQuotaSnapshot& entry,
                                              QuotaPeriod period, model::Timestamp now,
                                              const model::RecentRates& recent) {
    const std::optional<QuotaWindowSnapshot>& window = model::window(entry, period);
    if (entry.syncState != model::QuotaSyncState::current || !window ||
        (window->resetsAt && *window->resetsAt <= now)) {
        return {};
    }
    Said& said = m_said[{entry.provider, period}];
    if (model::isNextWindow(*window, said.window, period)) {
        said = {};
    }
    News news;
    const int left = static_cast<int>(model::remainingPercent(*window));
    if (const int threshold = thresholdReached(left); threshold < said.left) {
        said.left = threshold;
        news.left = left;
    }
    const auto pace = model::pace(entry, period, now, recent);
    if (pace && pace->runsOutAt && !said.runsOut &&
        pace->resetsAt - *pace->runsOutAt >= model::length(period) / 10) {
        said.runsOut = true;
        news.runsOutAt = pace->runsOutAt;
    }
    if (news.left || news.runsOutAt) {
        said.window = *window;
    }
    return news;
}

QStringList LowQuotaNotifier::texts(const News& news, model::AIProvider provider,
                                    QuotaPeriod period, model::Timestamp now,
                                    const model::LocalZone& zone) const {
    QStringList lines;
    const QString name = model::displayName(provider);
    if (news.left) {
        lines += leftText(name, period, *news.left);
    }
    if (news.runsOutAt) {
        // Not kept: a locale takes megabytes, and this is rarely said.
        const model::WeekdayTimeFormat format(m_locale, zone);
        lines += runsOutText(name, period, format.format(*news.runsOutAt, now));
    }
    return lines;
}

void LowQuotaNotifier::load() {
    struct Row {
        model::QuotaKey window;
        Said said;
    };
    m_stored = m_defaults.data(saidKey);
    const auto readRow = [](const model::JsonReader& row) {
        return Row{
            .window = {row.enumeration<model::AIProvider>(QLatin1StringView{"provider"}),
                       row.enumeration<QuotaPeriod>(QLatin1StringView{"period"})},
            .said = {.window = {.usedPercent = row.number(QLatin1StringView{"usedPercent"}),
                                .resetsAt = row.optionalTimestamp(QLatin1StringView{"resetsAt"})},
                     .left = static_cast<int>(std::clamp<std::int64_t>(
                         row.integer(QLatin1StringView{"left"}), 0, noThreshold)),
                     .runsOut = row.boolean(QLatin1StringView{"runsOut"})}};
    };
    const auto rows =
        model::decodeJson<std::vector<Row>>(m_stored, [&](const model::JsonReader& reader) {
            return reader.list<Row>(QLatin1StringView{"windows"}, readRow);
        });
    if (rows) {
        for (const Row& row : *rows) {
            m_said[row.window] = row.said;
        }
    }
}

void LowQuotaNotifier::save() {
    QJsonArray rows;
    for (const auto& [window, said] : m_said) {
        if (said.left == noThreshold && !said.runsOut) {
            continue;
        }
        QJsonObject row{{QStringLiteral("provider"), model::rawValue(window.first)},
                        {QStringLiteral("period"), model::rawValue(window.second)},
                        {QStringLiteral("usedPercent"), said.window.usedPercent},
                        {QStringLiteral("left"), said.left},
                        {QStringLiteral("runsOut"), said.runsOut}};
        if (said.window.resetsAt) {
            row[QStringLiteral("resetsAt")] = model::formatTimestamp(*said.window.resetsAt);
        }
        rows.append(row);
    }
    const QJsonObject object{{QStringLiteral("windows"), rows}};
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    // What cannot be stored is tried again after the next refresh.
    if (json != m_stored && m_defaults.setData(saidKey, json)) {
        m_stored = json;
    }
}

} // namespace tallyvane::notify
