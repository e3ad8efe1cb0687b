#include "ui/menubar/menu_bar_label.h"

#include "model/quota_display.h"

namespace tallyvane::ui {

namespace {

std::optional<double> gaugeValue(const model::ProviderQuotaSnapshot& entry) {
    const auto& window = entry.fiveHour ? entry.fiveHour : entry.week;
    return window ? std::optional(model::remainingPercent(*window)) : std::nullopt;
}

} // namespace

QString labelText(const model::QuotaSnapshot& snapshot) {
    const std::optional<int> lowest = model::lowestRemainingPercent(snapshot);
    return lowest ? QStringLiteral("%1%").arg(*lowest) : QString();
}

GaugeValues gaugeValues(const model::QuotaSnapshot& snapshot) {
    return {.codex = gaugeValue(entryFor(snapshot, model::AIProvider::codex)),
            .claude = gaugeValue(entryFor(snapshot, model::AIProvider::claude))};
}

QStringList menuLines(const model::QuotaSnapshot& snapshot) {
    QStringList lines;
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        lines.append(QStringLiteral("%1: %2").arg(
            model::displayName(provider), model::summaryText(entryFor(snapshot, provider))));
    }
    return lines;
}

QStringList tooltipLines(const model::QuotaSnapshot& snapshot) {
    const QString label = labelText(snapshot);
    const QString name = QStringLiteral("Tallyvane");
    return QStringList{label.isEmpty() ? name : QStringLiteral("%1: %2").arg(name, label)} +
           menuLines(snapshot);
}

} // namespace tallyvane::ui
