#include "ui/dashboard/dashboard_model.h"

#include "ui/dashboard/relative_times.h"

namespace tallyvane::ui {

DashboardModel::DashboardModel(const core::AppModel& model, platform::Clock& clock,
                               model::WeekdayTimeFormat weekdayTime, const QUrl& website,
                               core::ProgramSetting codexProgram)
    : m_model(model),
      m_clock(clock),
      m_weekdayTime(std::move(weekdayTime)),
      m_website(website),
      m_codexProgram(std::move(codexProgram)),
      m_toast(clock) {
    connect(&model, &core::AppModel::snapshotChanged, this, &DashboardModel::update);
    connect(&model, &core::AppModel::lastErrorChanged, this, &DashboardModel::update);
    connect(&model, &core::AppModel::failuresChanged, this, &DashboardModel::update);
    connect(&model, &core::AppModel::isRefreshingChanged, this, [this] {
        m_toast.setRefreshing(isRefreshing());
        Q_EMIT isRefreshingChanged();
    });
    m_toast.setRefreshing(isRefreshing());
    update();
}

void DashboardModel::useFoundProgram() {
    // If that fails, the next refresh says why.
    (void)m_codexProgram.choose(m_shown.failure.foundProgram);
}

void DashboardModel::update() {
    const model::Timestamp now = m_clock.now();
    const model::QuotaSnapshot snapshot = m_model.snapshot();
    const core::Failures failures = m_model.failures();
    const model::RecentRates recent = m_model.recentRates();
    std::vector<ProviderCardRow> cards;
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        ProviderCard card = providerCard(entry, now, m_weekdayTime, recent);
        const auto failed = failures.find(entry.provider);
        if (failed != failures.end() && failed->second.text != m_model.lastError()) {
            card.trouble = failed->second.sentences();
        }
        cards.push_back({std::move(card)});
    }
    m_cards.setRecords(std::move(cards));
    Shown shown{//: %1 is how long ago, such as "5 min ago"
                .updated = tr("Updated %1").arg(model::ageText(snapshot.updatedAt, now)),
                .lastError = m_model.lastError().value_or(model::Message())};
    for (const auto& [provider, failure] : failures) {
        if (failure.text == shown.lastError) {
            shown.failure = failure;
        }
    }

    auto wait = untilAgeTextChanges(snapshot.updatedAt, now);
    const auto waitNoLongerThan = [&wait](std::optional<std::chrono::milliseconds> until) {
        if (until) {
            wait = std::min(wait.value_or(*until), *until);
        }
    };
    for (const model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        if (entry.syncState == model::QuotaSyncState::pending) {
            waitNoLongerThan(untilAgeTextChanges(entry.syncedAt, now));
        }
        for (const auto& window : {entry.fiveHour, entry.week}) {
            if (window && entry.syncState == model::QuotaSyncState::current) {
                waitNoLongerThan(untilResetTextChanges(window->resetsAt, now));
            }
        }
        for (const model::QuotaPeriod period : model::allCases<model::QuotaPeriod>) {
            const auto pace = model::pace(entry, period, now, recent);
            if (pace && pace->runsOutAt) {
                waitNoLongerThan(
                    std::chrono::ceil<std::chrono::milliseconds>(*pace->runsOutAt - now));
            }
        }
    }
    m_nextChange =
        wait ? m_clock.after(std::max(*wait, shortestWait), [this] { update(); }) : nullptr;

    if (shown != m_shown) {
        m_shown = std::move(shown);
        Q_EMIT changed();
    }
}

} // namespace tallyvane::ui

#include "moc_dashboard_model.cpp"
