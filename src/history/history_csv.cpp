#include "history/history_csv.h"

#include "history/calendar_days.h"

#include <QtCore/QLocale>

namespace tallyvane::history {

QString csvText(const UsageHistory& history, const model::LocalZone& zone) {
    QString text = QStringLiteral("day,provider,weekly_quota_percent,tokens\r\n");
    for (const UsageHistoryPoint& point : history.points) {
        text += localDay(point.date, zone).toString(Qt::ISODate) + u',' +
                model::rawValue(point.provider) + u',' +
                QString::number(point.estimatedQuotaConsumed, 'f', QLocale::FloatingPointShortest) +
                u',' + QString::number(point.estimatedLocalTokens) + QStringLiteral("\r\n");
    }
    return text;
}

} // namespace tallyvane::history
