#include "ui/item/menu_bar_label.h"

#include "model/quota_display.h"

#include <QtCore/QCoreApplication>

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
    return {.codex = gaugeValue(entryFor(snapshot, model::AIProvider::codex)),
            .claude = gaugeValue(entryFor(snapshot, model::AIProvider::claude))};
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
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        const QString age = oldFiguresAge(entryFor(snapshot, provider), now);
        if (!age.isEmpty()) {
            //: %1 is how long ago, such as "20 min ago"
            lines[std::to_underlying(provider)] += MenuBarLabel::tr(" (last updated %1)").arg(age);
        }
    }
    return lines;
}

QStringList tooltipLines(const model::QuotaSnapshot& snapshot, const core::Failures& failures,
                         model::Timestamp now) {
    const QString label = model::labelText(snapshot);
    const QString name = QStringLiteral("Tallyvane");
    QStringList lines = {label.isEmpty() ? name : MenuBarLabel::tr("%1: %2").arg(name, label)};
    const QStringList providerLines = menuLines(snapshot, now);
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        lines += providerLines.at(std::to_underlying(provider));
        const QStringList resets = resetTexts(entryFor(snapshot, provider), now);
        if (!resets.isEmpty()) {
            lines += u'\u2003' + resets.join(dot); // hosts that parse markup drop plain spaces
        }
    }
    for (const auto& [provider, failure] : failures) {
        lines += failure.sentences();
    }
    return lines;
}

} // namespace tallyvane::ui
