#include "ui/item/menu_bar_label.h"

#include "model/quota_display.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <utility>

namespace tallyvane::ui {

namespace {

constexpr std::chrono::minutes oldAge{15};

class MenuBarLabel {
    Q_DECLARE_TR_FUNCTIONS(MenuBarLabel)
};

std::optional<double> gaugeValue(const model::ProviderQuotaSnapshot& entry) {
    const auto& window = entry.fiveHour ? entry.fiveHour : entry.week;
    return window ? std::optional(model::remainingPercent(*window)) : std::nullopt;
}

} // namespace

GaugeValues gaugeValues(const model::QuotaSnapshot& snapshot) {
    GaugeValues values;
    std::ranges::transform(snapshot.providers, std::back_inserter(values), gaugeValue);
    return values;
}

QString oldFiguresAge(const model::ProviderQuotaSnapshot& entry, model::Timestamp now) {
    const bool isOld = entry.syncState == model::QuotaSyncState::pending ||
                       (entry.syncedAt && now - *entry.syncedAt >= oldAge);
    return isOld && entry.syncedAt ? model::ageText(entry.syncedAt, now) : QString();
}

QStringList resetTexts(const model::ProviderQuotaSnapshot& entry, model::Timestamp now) {
    QStringList parts;
    for (const auto& [window, name] : {std::pair(&entry.fiveHour, MenuBarLabel::tr("5H")),
                                       std::pair(&entry.week, MenuBarLabel::tr("WK"))}) {
        const auto resetsAt = *window ? (*window)->resetsAt : std::nullopt;
        if (entry.syncState == model::QuotaSyncState::current && resetsAt && *resetsAt > now) {
            //: %1 is "5H", %2 a time such as "in 2h 14m"
            const QString text =
                parts.isEmpty() ? MenuBarLabel::tr("%1 resets %2") : MenuBarLabel::tr("%1 %2");
            parts << text.arg(name, model::countdownText(*resetsAt - now));
        }
    }
    return parts;
}

QStringList menuLines(const model::QuotaSnapshot& snapshot, model::Timestamp now) {
    QStringList lines = model::summaryLines(snapshot);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto& entry = snapshot.providers[static_cast<std::size_t>(i)];
        const QString age = oldFiguresAge(entry, now);
        if (!age.isEmpty()) {
            //: %1 is how long ago, such as "20 min ago"
            lines[i] += MenuBarLabel::tr(" (last updated %1)").arg(age);
        }
    }
    return lines;
}

QString runOutMenuLine(const model::ProviderQuotaSnapshot& entry, model::Timestamp now,
                       const model::RecentRates& recent) {
    const QStringList texts = model::runOutTexts(entry, now, recent);
    //: %1 is "Codex" or "Claude", %2 when its quotas run out, such as "5H runs out in 1h 10m"
    const QString line = MenuBarLabel::tr("%1: %2");
    return texts.isEmpty() ? QString()
                           : line.arg(model::displayName(entry.provider), texts.join(model::dot));
}

QStringList tooltipLines(const model::QuotaSnapshot& snapshot, const core::Failures& failures,
                         model::Timestamp now, const model::RecentRates& recent) {
    const QString label = model::labelText(snapshot);
    const QString name = QStringLiteral("Tallyvane");
    QStringList lines = {label.isEmpty() ? name : MenuBarLabel::tr("%1: %2").arg(name, label)};
    const QStringList providerLines = menuLines(snapshot, now);
    for (qsizetype i = 0; i < providerLines.size(); ++i) {
        const auto& entry = snapshot.providers[static_cast<std::size_t>(i)];
        lines += providerLines[i];
        for (const QStringList& details :
             {resetTexts(entry, now), model::runOutTexts(entry, now, recent)}) {
            if (!details.isEmpty()) {
                lines += u'\u2003' +
                         details.join(model::dot); // hosts that parse markup drop plain spaces
            }
        }
    }
    for (const auto& [provider, failure] : failures) {
        lines += failure.sentences();
    }
    return lines;
}

} // namespace tallyvane::ui
