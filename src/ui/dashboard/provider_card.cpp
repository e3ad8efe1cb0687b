#include "ui/dashboard/provider_card.h"

#include "ui/style/colour.h"

#include <QtCore/QCoreApplication>

#include <array>
#include <cmath>

namespace tallyvane::ui {

namespace {

constexpr double staleOpacity = 0.55;

class Card {
    Q_DECLARE_TR_FUNCTIONS(ProviderCard)
};

QString lengthText(model::Timestamp::duration length) {
    using namespace std::chrono;
    if (length < hours{1}) {
        return Card::tr("%n min", nullptr, static_cast<int>(length / minutes{1}));
    }
    return length < days{1} ? Card::tr("%n hr", nullptr, static_cast<int>(length / hours{1}))
                            : Card::tr("%n d", nullptr, static_cast<int>(length / days{1}));
}

/// By what the projection is based upon: the whole window, the last hour, the last day.
constexpr std::array lastingTexts{
    QT_TRANSLATE_NOOP("ProviderCard", "At this pace it lasts until the reset"),
    QT_TRANSLATE_NOOP("ProviderCard", "At the pace of the last hour it lasts until the reset"),
    QT_TRANSLATE_NOOP("ProviderCard", "At the pace of the last day it lasts until the reset")};

/// Likewise; "%1" a time such as "16:40" or "Tue 16:40", "%2" a length such as "52 min".
constexpr std::array endTexts{
    QT_TRANSLATE_NOOP("ProviderCard", "At this pace it runs out at %1, %2 before the reset"),
    QT_TRANSLATE_NOOP("ProviderCard",
                      "At the pace of the last hour it runs out at %1, %2 before the reset"),
    QT_TRANSLATE_NOOP("ProviderCard",
                      "At the pace of the last day it runs out at %1, %2 before the reset")};

QString paceText(const model::QuotaPace& pace, model::QuotaPeriod period, model::Timestamp now,
                 const model::WeekdayTimeFormat& weekdayTime) {
    const std::size_t basis = !pace.isRecent ? 0 : period == model::QuotaPeriod::fiveHour ? 1 : 2;
    if (pace.runsOutAt) {
        return Card::tr(endTexts[basis])
            .arg(weekdayTime.format(*pace.runsOutAt, now),
                 lengthText(pace.resetsAt - *pace.runsOutAt));
    }
    return pace.isProjected ? Card::tr(lastingTexts[basis]) : QString();
}

QuotaRow quotaRow(const model::ProviderQuotaSnapshot& entry, model::QuotaPeriod period,
                  model::Timestamp now, const model::WeekdayTimeFormat& weekdayTime,
                  const model::RecentRates& recent) {
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
        if (const auto pace = model::pace(entry, period, now, recent)) {
            row.evenFraction = pace->evenPercent / 100;
            row.pace = remaining > 0 ? paceText(*pace, period, now, weekdayTime) : QString();
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
                          const model::WeekdayTimeFormat& weekdayTime,
                          const model::RecentRates& recent) {
    const bool isPending = entry.syncState == model::QuotaSyncState::pending;
    //: %1 is how long ago the figures were fetched, such as "2 hr ago"
    const QString age = Card::tr("From %1");
    return {.name = model::displayName(entry.provider),
            .icon = icon(entry.provider),
            .plan = entry.planName.value_or(QString()).toUpper(),
            .accent = toColour(model::accentColour(entry.provider)),
            .isPending = isPending,
            .usagePage = QUrl(model::usagePage(entry.provider)),
            .age = isPending && entry.syncedAt ? age.arg(model::ageText(entry.syncedAt, now))
                                               : QString(),
            .fiveHour = quotaRow(entry, model::QuotaPeriod::fiveHour, now, weekdayTime, recent),
            .week = quotaRow(entry, model::QuotaPeriod::week, now, weekdayTime, recent)};
}

} // namespace tallyvane::ui

#include "moc_provider_card.cpp"
