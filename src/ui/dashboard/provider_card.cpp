#include "ui/dashboard/provider_card.h"

#include "ui/style/colour.h"

#include <QtCore/QCoreApplication>

#include <cmath>

namespace tallyvane::ui {

namespace {

constexpr double staleOpacity = 0.55;

QuotaRow quotaRow(const model::ProviderQuotaSnapshot& entry, model::QuotaPeriod period,
                  model::Timestamp now, const model::WeekdayTimeFormat& weekdayTime) {
    const auto& window = model::window(entry, period);
    const bool isCurrent = entry.syncState == model::QuotaSyncState::current;
    QuotaRow row{.figure = QStringLiteral("--"),
                 .resetText = model::resetText(window ? window->resetsAt : std::nullopt, entry, now,
                                               weekdayTime),
                 .opacity = isCurrent ? 1 : staleOpacity};
    if (window) {
        const double remaining = model::remainingPercent(*window);
        row.figure = model::percentText(static_cast<int>(std::lround(remaining)));
        row.fraction = remaining / 100;
        if (isCurrent) {
            row.level = remaining < model::lowPercent ? QuotaLevel::Low : QuotaLevel::Ample;
        }
    }
    return row;
}

/// A name in style/symbols.
QString icon(model::AIProvider provider) {
    return provider == model::AIProvider::claude ? QStringLiteral("ClaudeIcon")
                                                 : QStringLiteral("CodexIcon");
}

} // namespace

ProviderCard providerCard(const model::ProviderQuotaSnapshot& entry, model::Timestamp now,
                          const model::WeekdayTimeFormat& weekdayTime) {
    const bool isPending = entry.syncState == model::QuotaSyncState::pending;
    //: %1 is how long ago the figures were fetched, such as "2 hr ago"
    const QString age = QCoreApplication::translate("ProviderCard", "From %1");
    return {.name = model::displayName(entry.provider),
            .icon = icon(entry.provider),
            .plan = entry.planName.value_or(QString()).toUpper(),
            .accent = toColour(model::accentColour(entry.provider)),
            .isPending = isPending,
            .usagePage = QUrl(model::usagePage(entry.provider)),
            .age = isPending && entry.syncedAt ? age.arg(model::ageText(entry.syncedAt, now))
                                               : QString(),
            .fiveHour = quotaRow(entry, model::QuotaPeriod::fiveHour, now, weekdayTime),
            .week = quotaRow(entry, model::QuotaPeriod::week, now, weekdayTime)};
}

} // namespace tallyvane::ui

#include "moc_provider_card.cpp"
