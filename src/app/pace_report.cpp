#include "app/pace_report.h"

#include "model/quota_display.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>

namespace tallyvane::app {

using model::QuotaPeriod;

namespace {

QString wholePercent(double percent) {
    return QStringLiteral("%1%").arg(std::lround(percent));
}

QString paceRow(const model::ProviderQuotaSnapshot& entry, QuotaPeriod period,
                model::Timestamp now) {
    const QString unknown = QStringLiteral("-");
    const auto& window = model::window(entry, period);
    const auto pace = model::pace(entry, period, now);
    const QString outlook = outlookText(entry, period, now);
    return QStringLiteral("%1  %2  %3  %4  %5  %6  %7\n")
        .arg(model::displayName(entry.provider), -8)
        .arg(period == QuotaPeriod::fiveHour ? QStringLiteral("5 hours") : QStringLiteral("Week"),
             -7)
        .arg(window ? wholePercent(model::remainingPercent(*window)) : unknown, 5)
        .arg(pace ? wholePercent(pace->evenPercent) : unknown, 5)
        .arg(pace ? aheadText(pace->aheadPercent) : unknown, 5)
        .arg(pace && pace->isProjected ? wholePercent(pace->projectedPercent) : unknown, 13)
        .arg(outlook.isEmpty() ? unknown : outlook);
}

} // namespace

QString aheadText(double points) {
    const auto whole = std::lround(points);
    return (whole > 0 ? QStringLiteral("+%1") : QStringLiteral("%1")).arg(whole);
}

QString outlookText(const model::ProviderQuotaSnapshot& entry, QuotaPeriod period,
                    model::Timestamp now) {
    const auto pace = model::pace(entry, period, now);
    if (!pace || !pace->isProjected || pace->leftPercent == 0) {
        return {};
    }
    return pace->runsOutAt
               ? QStringLiteral("runs out ") + model::countdownText(*pace->runsOutAt - now)
               : QStringLiteral("lasts");
}

QString paceTable(const model::QuotaSnapshot& snapshot, model::Timestamp now) {
    QString table =
        QStringLiteral("Provider  Window    Left   Even  Ahead  Used at reset  Outlook\n");
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        for (const QuotaPeriod period : model::allCases<QuotaPeriod>) {
            table += paceRow(entry, period, now);
        }
    }
    return table;
}

QByteArray paceJson(const model::QuotaSnapshot& snapshot, model::Timestamp now) {
    QJsonArray windows;
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        for (const QuotaPeriod period : model::allCases<QuotaPeriod>) {
            const auto pace = model::pace(entry, period, now);
            if (!pace) {
                continue;
            }
            QJsonObject object{{QStringLiteral("provider"), model::rawValue(entry.provider)},
                               {QStringLiteral("period"), model::rawValue(period)},
                               {QStringLiteral("syncedAt"), model::formatTimestamp(pace->syncedAt)},
                               {QStringLiteral("resetsAt"), model::formatTimestamp(pace->resetsAt)},
                               {QStringLiteral("leftPercent"), pace->leftPercent},
                               {QStringLiteral("evenPercent"), pace->evenPercent},
                               {QStringLiteral("aheadPercent"), pace->aheadPercent}};
            if (pace->isProjected) {
                object[QStringLiteral("projectedPercent")] = pace->projectedPercent;
            }
            if (pace->runsOutAt) {
                object[QStringLiteral("runsOutAt")] = model::formatTimestamp(*pace->runsOutAt);
            }
            windows.append(object);
        }
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("windows"), windows}}).toJson();
}

} // namespace tallyvane::app
