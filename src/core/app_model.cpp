#include "core/app_model.h"

#include "core/preferences.h"
#include "history/usage_history_recorder.h"
#include "platform/spawn.h"
#include "providers/advice.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>

#include <algorithm>
#include <stop_token>

namespace tallyvane::core {

using namespace std::chrono_literals;
using model::AIProvider;
using model::ProviderQuotaSnapshot;
using model::QuotaSnapshot;
using model::QuotaSyncState;
using providers::AskedBy;
using Place = providers::QuotaFailure::Place;

namespace {

const QString widgetKind = QStringLiteral("GaugewellWidget");

/// Longer than any refresh takes.
constexpr std::chrono::milliseconds lockPatience = 60s;
constexpr std::chrono::milliseconds lockInterval = 100ms;

QCoro::Task<> pause(platform::Clock* clock, std::chrono::milliseconds length) {
    QPromise<void> promise;
    promise.start();
    const QFuture<void> passed = promise.future();
    const auto alarm = clock->after(
        length, [&promise] { promise.finish(); }, platform::SuspendedTime::doesNotCount);
    co_await passed;
}

/// The previous figures, marked as out of date.
ProviderQuotaSnapshot staleEntry(const QuotaSnapshot& previous, AIProvider provider,
                                 const providers::QuotaFailure& failure) {
    ProviderQuotaSnapshot entry = model::entryFor(previous, provider);
    entry.syncState = entry.syncedAt ? QuotaSyncState::pending : QuotaSyncState::unavailable;
    if (failure.shownAt == Place::besideFigures) {
        entry.statusMessage = failure.shortText;
    }
    return entry;
}

/// Why the providers had given no figures when `snapshot` was stored, as far as it tells.
Failures storedFailures(const QuotaSnapshot& snapshot) {
    Failures failures;
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        const QString status = entry.statusMessage.value_or(QString());
        const model::Message advice = providers::storedStatusAdvice(status);
        if (entry.syncState != QuotaSyncState::current && !advice.isEmpty()) {
            failures[entry.provider] = {.text = model::Message("%1.", {status}),
                                        .advice = advice,
                                        .shownAt = Place::besideFigures,
                                        .shortText = status};
        }
    }
    return failures;
}

/// The first that is to be shown in the error line.
std::optional<model::Message> errorLine(const Failures& failures) {
    const auto found = std::ranges::find_if(
        failures, [](const auto& failed) { return failed.second.shownAt == Place::errorLine; });
    return found == failures.end() ? std::nullopt : std::optional(found->second.text);
}

} // namespace

AppModel::AppModel(const Services& services, std::optional<QuotaSnapshot> snapshot,
                   std::optional<history::UsageHistory> history)
    : m_services(services), m_baselines(services.defaults) {
    if (!snapshot) {
        snapshot = services.store.loadSnapshot();
        m_storedSnapshot = snapshot;
        m_recordedSnapshot = snapshot;
    }
    if (!history) {
        history = history::loadHistory(services.store);
    }
    m_wholeSnapshot = snapshot.value_or(model::placeholderSnapshot(services.clock.now()));
    m_allFailures = storedFailures(m_wholeSnapshot);
    m_wholeHistory = history.value_or(history::UsageHistory{});
    publish(loadOnlyProvider(services.defaults));
    reloadPreferences();
}

void AppModel::reloadPreferences() {
    model::DefaultsStore& defaults = m_services.defaults;
    m_appearance = loadAppearance(defaults);
    m_notificationSettings = notify::loadNotificationSettings(defaults);
    m_warnsOfLowQuota = loadWarnsOfLowQuota(defaults);
    show(loadOnlyProvider(defaults));
    Q_EMIT preferencesReloaded();
}

void AppModel::setAppearance(model::AppAppearance appearance) {
    showError(saveAppearance(m_services.defaults, appearance));
    m_appearance = appearance;
}

std::vector<AIProvider> AppModel::shownProviders() const {
    return core::shownProviders(onlyProvider());
}

bool AppModel::isShown(AIProvider provider) const {
    const std::vector<AIProvider> shown = shownProviders();
    return std::ranges::find(shown, provider) != shown.end();
}

void AppModel::setOnlyProvider(std::optional<AIProvider> only) {
    const auto saved = saveOnlyProvider(m_services.defaults, only);
    show(only);
    showError(saved);
}

void AppModel::show(std::optional<AIProvider> only) {
    if (only == onlyProvider()) {
        return;
    }
    const auto isLastError = [this](const auto& failed) {
        return failed.second.text == lastError();
    };
    const bool isOfProvider = std::ranges::any_of(m_allFailures, isLastError);
    publish(only);
    if (isOfProvider) {
        m_lastError = errorLine(m_failures);
    }
}

void AppModel::publish(std::optional<AIProvider> only) {
    const std::vector<AIProvider> shown = core::shownProviders(only);
    Failures failures;
    for (const AIProvider provider : shown) {
        if (const auto failed = m_allFailures.find(provider); failed != m_allFailures.end()) {
            failures.insert(*failed);
        }
    }
    m_history = history::withProviders(m_wholeHistory, shown);
    m_snapshot = model::withProviders(m_wholeSnapshot, shown);
    m_failures = failures;
    m_onlyProvider = only;
}

void AppModel::setNotificationSettings(const notify::NotificationSettings& settings) {
    showError(notify::saveNotificationSettings(m_services.defaults, settings));
    m_notificationSettings = settings;
}

void AppModel::setWarnsOfLowQuota(bool warns) {
    showError(saveWarnsOfLowQuota(m_services.defaults, warns));
    m_warnsOfLowQuota = warns;
}

void AppModel::showError(const std::expected<void, model::FileError>& saved) {
    if (!saved) {
        m_lastError = saved.error().message;
    }
}

void AppModel::clearHistory() {
    m_wholeHistory = history::UsageHistory{};
    publish(onlyProvider());
    (void)history::saveHistory(m_services.store, m_wholeHistory);
}

void AppModel::startRefresh() {
    platform::spawn(refreshForUser());
}

QCoro::Task<> AppModel::refreshForUser() {
    co_await refresh(AskedBy::user);
}

void AppModel::startAutoRefresh(const LaunchContext& context) {
    if (!context.isTestHost && !context.isFixtureMode) {
        platform::spawn(refreshRepeatedly());
    }
}

QCoro::Task<> AppModel::refreshRepeatedly() {
    co_await refresh(AskedBy::timer);
    m_nextRefresh =
        m_services.clock.after(refreshInterval, [this] { platform::spawn(refreshRepeatedly()); });
}

QCoro::Task<RefreshReport> AppModel::refresh(AskedBy askedBy) {
    if (m_isRefreshing) {
        co_return RefreshReport{.outcome = RefreshReport::Outcome::alreadyRunning};
    }
    QPromise<RefreshReport> end;
    end.start();
    m_end = end.future();
    m_isRefreshing = true;
    RefreshReport report = co_await runCycle(askedBy);
    m_isRefreshing = false;
    end.addResult(report);
    end.finish();
    co_return report;
}

QCoro::Task<RefreshReport> AppModel::refreshOrJoin() {
    // Awaits the future rather than isRefreshingChanged: if the next refresh started before every
    // waiting caller had resumed, the second signal would resume the rest twice.
    if (!m_isRefreshing) {
        startRefresh();
    }
    const QFuture<RefreshReport> end = m_end;
    const RefreshReport report = co_await end;
    co_return report;
}

QCoro::Task<std::expected<model::FileLock, model::Message>> AppModel::lockStore() {
    for (auto waited = 0ms; waited <= lockPatience; waited += lockInterval) {
        auto tried = m_services.store.tryLock();
        if (!tried) {
            co_return std::unexpected(tried.error().message);
        }
        std::optional<model::FileLock> lock = *std::move(tried);
        if (lock) {
            co_return *std::move(lock);
        }
        co_await pause(&m_services.clock, lockInterval);
    }
    co_return std::unexpected(model::Message(
        QT_TRANSLATE_NOOP("Message", "Another program is refreshing the same files and did not end "
                                     "within a minute.")));
}

QuotaSnapshot AppModel::previousSnapshot() {
    auto stored = m_services.store.loadSnapshot();
    if (stored && stored != m_storedSnapshot) {
        m_storedSnapshot = stored;
        m_recordedSnapshot = std::move(stored);
    }
    return m_recordedSnapshot.value_or(model::placeholderSnapshot(m_services.clock.now()));
}

QCoro::Task<RefreshReport> AppModel::runCycle(AskedBy askedBy) {
    const auto locked = co_await lockStore();
    if (!locked) {
        co_return notSaved({}, locked.error());
    }
    const QuotaSnapshot previous = previousSnapshot();
    std::stop_source stopTokens;
    // Tasks are eager: both run concurrently from here.
    QCoro::Task<Answers> answersTask = askProviders(previous, askedBy);
    auto tokenTask =
        m_services.tokenEstimator.estimate(m_services.clock.now(), stopTokens.get_token());

    const Answers answers = co_await answersTask;
    QuotaSnapshot current;
    current.providers = answers.entries;
    current.updatedAt = m_services.clock.now();
    RefreshReport report{.failures = answers.failures};

    if (const auto saved = m_services.store.saveSnapshot(current); !saved) {
        report = notSaved(report, saved.error().message);
        stopTokens.request_stop();
        co_await tokenTask;
        co_return report;
    }
    m_storedSnapshot = m_services.store.loadSnapshot();

    const auto totals = co_await tokenTask;
    history::UsageHistoryRecorder recorder(m_services.store, m_baselines, m_services.zone);
    const auto recorded = recorder.record(
        previous, current, totals.value_or(history::TokenTotals()), m_services.clock.now());
    if (!recorded) {
        // Until the next refresh, the stored snapshot is then newer than the one shown.
        co_return notSaved(report, recorded.error().message);
    }
    report.uncounted = totals ? recorded->uncounted : history::scanFailureText(totals.error());
    m_recordedSnapshot = current;

    m_wholeHistory = recorded->history;
    m_wholeSnapshot = current;
    m_recentUse.add(current);
    m_allFailures = answers.failures;
    publish(onlyProvider());
    m_services.notifier.process(m_snapshot, m_notificationSettings, m_services.clock.now(),
                                m_services.zone);
    const std::optional<model::Message> failed = errorLine(m_failures);
    m_lastError = failed ? failed : report.uncounted;
    m_services.widgetCentre.reloadTimelines(widgetKind);
    m_services.widgetCentre.reloadAllTimelines();
    co_return report;
}

RefreshReport AppModel::notSaved(RefreshReport report, const model::Message& reason) {
    m_lastError = reason;
    report.outcome = RefreshReport::Outcome::notSaved;
    report.notSaved = reason;
    return report;
}

QCoro::Task<AppModel::Answers> AppModel::askProviders(QuotaSnapshot previous, AskedBy askedBy) {
    // Nothing for a provider that is hidden as the refresh begins.
    std::vector<std::optional<QCoro::Task<providers::QuotaResult>>> fetches;
    fetches.reserve(m_services.quotaClients.size());
    for (providers::QuotaClient& client : m_services.quotaClients) {
        auto& fetch = fetches.emplace_back();
        if (isShown(client.provider())) {
            fetch = client.fetch(askedBy); // eager
        }
    }
    Answers answers;
    for (std::size_t i = 0; i < fetches.size(); ++i) {
        const AIProvider provider = m_services.quotaClients[i].get().provider();
        auto& fetch = fetches[i];
        if (!fetch) {
            answers.entries.push_back(model::entryFor(previous, provider));
            continue;
        }
        const providers::QuotaResult fetched = co_await *fetch;
        if (fetched) {
            answers.entries.push_back(*fetched);
            continue;
        }
        answers.entries.push_back(staleEntry(previous, provider, fetched.error()));
        answers.failures[provider] = fetched.error();
    }
    co_return answers;
}

} // namespace tallyvane::core

#include "moc_app_model.cpp"
