#include "app/status_report.h"

#include "app/pace_report.h"
#include "core/preferences.h"
#include "model/foreign_text.h"
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
constexpr std::chrono::minutes toleratedSkew{1};

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
    const QString reset = model::resetText(resetsAt, entry, now, weekdayTime);
    const QString outlook = outlookText(entry, period, now);
    return QStringLiteral("  %1  %2  %3\n")
        .arg(name, -7)
        .arg(figure,
             outlook.isEmpty() ? reset : QStringLiteral("%1  %2").arg(reset, -13).arg(outlook));
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
    const auto age = now - snapshot.updatedAt;
    if (age > staleAge || age < -toleratedSkew ||
        std::ranges::any_of(snapshot.providers, holdsTheFigureStale)) {
        return QStringLiteral("stale");
    }
    return *lowest < model::lowPercent ? QStringLiteral("low") : QStringLiteral("ok");
}

QString tooltipFigure(const ProviderQuotaSnapshot& entry, QuotaPeriod period) {
    const auto& window = model::window(entry, period);
    return window ? QStringLiteral("%1%").arg(static_cast<int>(model::remainingPercent(*window)))
                  : QStringLiteral("-");
}

/// model::summaryText() writes 0% for a figure that is not known.
QString tooltipLine(const ProviderQuotaSnapshot& entry, model::Timestamp now) {
    const QString summary = entry.syncState == QuotaSyncState::pending
                                ? model::summaryText(entry)
                                : QStringLiteral("5H %1  \u00B7  WK %2")
                                      .arg(tooltipFigure(entry, QuotaPeriod::fiveHour),
                                           tooltipFigure(entry, QuotaPeriod::week));
    const QStringList runOut = model::runOutTexts(entry, now);
    return QStringLiteral("%1: %2").arg(model::displayName(entry.provider), summary) +
           (runOut.isEmpty() ? QString() : QStringLiteral("\n\u2003") + runOut.join(model::dot));
}

std::optional<QString> fitForTerminal(const std::optional<QString>& text) {
    return text ? std::optional(model::readableLine(*text)) : std::nullopt;
}

} // namespace

model::QuotaSnapshot shownSnapshot(const model::QuotaSnapshot& snapshot,
                                   std::optional<model::AIProvider> only) {
    model::QuotaSnapshot shown = model::withProviders(snapshot, core::shownProviders(only));
    for (ProviderQuotaSnapshot& entry : shown.providers) {
        entry.planName = fitForTerminal(entry.planName);
        entry.statusMessage = fitForTerminal(entry.statusMessage);
    }
    return shown;
}

QString statusText(const model::QuotaSnapshot& snapshot, model::Timestamp now,
                   const model::WeekdayTimeFormat& weekdayTime, Palette palette) {
    QString text;
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        text += headLine(entry, now, palette);
        for (const QuotaPeriod period : model::allCases<QuotaPeriod>) {
            text += windowLine(entry, period, now, weekdayTime, palette);
        }
    }
    return text;
}

QString waybarLine(const model::QuotaSnapshot& snapshot, model::Timestamp now) {
    const std::optional<int> lowest = model::lowestRemainingPercent(snapshot);
    QStringList tooltip;
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        tooltip += tooltipLine(entry, now);
    }
    QJsonObject line{{QStringLiteral("text"), model::labelText(snapshot)},
                     // Waybar reads the tooltip as Pango markup.
                     {QStringLiteral("tooltip"), tooltip.join(u'\n').toHtmlEscaped()},
                     {QStringLiteral("class"), waybarClass(snapshot, lowest, now)}};
    if (lowest) {
        line[QStringLiteral("percentage")] = *lowest;
    }
    return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace tallyvane::app
