#include "app/status_report.h"

#include "model/quota_display.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace tallyvane::app {

using model::ProviderQuotaSnapshot;
using model::QuotaPeriod;
using model::QuotaSyncState;

namespace {

constexpr std::chrono::minutes staleAge{15};

QString styled(const QString& text, const char* code, Palette palette) {
    return palette == Palette::plain
               ? text
               : QStringLiteral("\033[%1m%2\033[0m").arg(QLatin1StringView(code), text);
}

QString headLine(const ProviderQuotaSnapshot& entry, model::Timestamp now, Palette palette) {
    QString line = styled(model::displayName(entry.provider), "1", palette);
    if (entry.planName) {
        line += QStringLiteral(" (%1)").arg(*entry.planName);
    }
    const QString age = entry.syncedAt
                            ? QStringLiteral(", synced ") + model::ageText(entry.syncedAt, now)
                            : QStringLiteral(", never synced");
    return line + styled(age, "2", palette) + u'\n';
}

QString windowLine(const ProviderQuotaSnapshot& entry, QuotaPeriod period, model::Timestamp now,
                   const model::WeekdayTimeFormat& weekdayTime, Palette palette) {
    const auto& window = model::window(entry, period);
    QString figure = QStringLiteral("   -     ");
    std::optional<model::Timestamp> resetsAt;
    if (window) {
        const int remaining = static_cast<int>(model::remainingPercent(*window));
        figure = QStringLiteral("%1% left").arg(remaining, 3);
        figure = styled(figure, remaining < model::lowPercent ? "31" : "32", palette);
        resetsAt = window->resetsAt;
    }
    const QString name =
        period == QuotaPeriod::fiveHour ? QStringLiteral("5 hours") : QStringLiteral("Week");
    return QStringLiteral("  %1  %2  %3\n")
        .arg(name, -7)
        .arg(figure, model::resetText(resetsAt, entry, now, weekdayTime));
}

QString waybarClass(const model::QuotaSnapshot& snapshot, std::optional<int> lowest,
                    model::Timestamp now) {
    if (!lowest) {
        return QStringLiteral("none");
    }
    const auto holdsTheFigureStale = [&](const ProviderQuotaSnapshot& entry) {
        return entry.syncState != QuotaSyncState::current &&
               model::lowestRemainingPercent({.providers = {entry}}) == lowest;
    };
    if (now - snapshot.updatedAt > staleAge ||
        std::ranges::any_of(snapshot.providers, holdsTheFigureStale)) {
        return QStringLiteral("stale");
    }
    return *lowest < model::lowPercent ? QStringLiteral("low") : QStringLiteral("ok");
}

} // namespace

QString statusText(const model::QuotaSnapshot& snapshot, model::Timestamp now,
                   const model::WeekdayTimeFormat& weekdayTime, Palette palette) {
    QString text;
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        const ProviderQuotaSnapshot entry = model::entryFor(snapshot, provider);
        text += headLine(entry, now, palette);
        for (const QuotaPeriod period : model::allCases<QuotaPeriod>) {
            text += windowLine(entry, period, now, weekdayTime, palette);
        }
    }
    return text;
}

QString waybarLine(const model::QuotaSnapshot& snapshot, model::Timestamp now) {
    const std::optional<int> lowest = model::lowestRemainingPercent(snapshot);
    const QJsonObject line{
        {QStringLiteral("text"), model::labelText(snapshot)},
        // Waybar reads the tooltip as Pango markup.
        {QStringLiteral("tooltip"), model::summaryLines(snapshot).join(u'\n').toHtmlEscaped()},
        {QStringLiteral("class"), waybarClass(snapshot, lowest, now)},
        {QStringLiteral("percentage"), lowest.value_or(0)}};
    return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace tallyvane::app
