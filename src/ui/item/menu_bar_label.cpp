#include "ui/item/menu_bar_label.h"

#include "model/quota_display.h"

namespace tallyvane::ui {

namespace {

std::optional<double> gaugeValue(const model::ProviderQuotaSnapshot& entry) {
    const auto& window = entry.fiveHour ? entry.fiveHour : entry.week;
    return window ? std::optional(model::remainingPercent(*window)) : std::nullopt;
}

} // namespace

GaugeValues gaugeValues(const model::QuotaSnapshot& snapshot) {
    return {.codex = gaugeValue(entryFor(snapshot, model::AIProvider::codex)),
            .claude = gaugeValue(entryFor(snapshot, model::AIProvider::claude))};
}

QStringList tooltipLines(const model::QuotaSnapshot& snapshot, const core::Failures& failures) {
    const QString label = model::labelText(snapshot);
    const QString name = QStringLiteral("Tallyvane");
    QStringList lines = {label.isEmpty() ? name : QStringLiteral("%1: %2").arg(name, label)};
    lines += model::summaryLines(snapshot);
    for (const auto& [provider, failure] : failures) {
        lines += failure.sentences();
    }
    return lines;
}

} // namespace tallyvane::ui
