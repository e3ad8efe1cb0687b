#include "core/app_model.h"

#include "history/usage_history_recorder.h"
#include "platform/spawn.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>

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

const QString appearanceKey = QStringLiteral("appearance");
const QString widgetKind = QStringLiteral("GaugewellWidget");

/// More than the longest refresh takes.
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

/// The provider's figures, marked as those of an earlier fetch.
ProviderQuotaSnapshot staleEntry(const QuotaSnapshot& previous, AIProvider provider,
                                 const providers::QuotaFailure& failure) {
    ProviderQuotaSnapshot entry = model::entryFor(previous, provider);
    entry.syncState = entry.syncedAt ? QuotaSyncState::pending : QuotaSyncState::unavailable;
    if (failure.shownAt == Place::besideFigures) {
        entry.statusMessage = failure.shortText;
    }
    return entry;
}

} // namespace

AppModel::AppModel(const Collaborators& with, std::optional<QuotaSnapshot> snapshot,
                   std::optional<history::UsageHistory> history)
    : m_with(with), m_baselines(with.defaults) {
    if (!snapshot) {
        snapshot = with.store.loadSnapshot();
        m_storedSnapshot = snapshot;
        m_recordedSnapshot = snapshot;
    }
    if (!history) {
        history = history::loadHistory(with.store);
    }
    m_snapshot = snapshot.value_or(model::placeholderSnapshot(with.clock.now()));
    m_history = history.value_or(history::UsageHistory{});
    m_appearance = model::fromRawValue<model::AppAppearance>(with.defaults.text(appearanceKey))
                       .value_or(model::AppAppearance::system);
    m_notificationSettings = notify::loadNotificationSettings(with.defaults);
}

void AppModel::setAppearance(model::AppAppearance appearance) {
    tellOf(m_with.defaults.setText(appearanceKey, model::rawValue(appearance)));
    m_appearance = appearance;
}

void AppModel::setNotificationSettings(const notify::NotificationSettings& settings) {
    tellOf(notify::saveNotificationSettings(m_with.defaults, settings));
    m_notificationSettings = settings;
}

void AppModel::tellOf(const std::expected<void, model::FileError>& saved) {
    if (!saved) {
        m_lastError = saved.error().message;
    }
}

void AppModel::clearHistory() {
    m_history = history::UsageHistory{};
    (void)history::saveHistory(m_with.store, m_history);
}

void AppModel::startRefresh() {
    platform::spawn(refreshAlone());
}

QCoro::Task<> AppModel::refreshAlone() {
    co_await refresh(AskedBy::user);
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

QCoro::Task<bool> AppModel::refreshOrJoin() {
    // Not the signal: the next refresh may start before all who wait have resumed, and an await of
    // a signal that comes again by then resumes twice.
    if (!m_isRefreshing) {
        startRefresh();
    }
    const QFuture<RefreshReport> end = m_end;
    const RefreshReport report = co_await end;
    co_return report.outcome == RefreshReport::Outcome::published;
}

QCoro::Task<std::expected<model::FileLock, QString>> AppModel::lockStore() {
    for (auto waited = 0ms; waited <= lockPatience; waited += lockInterval) {
        auto tried = m_with.store.tryLock();
        if (!tried) {
            co_return std::unexpected(tried.error().message);
        }
        std::optional<model::FileLock> lock = *std::move(tried);
        if (lock) {
            co_return *std::move(lock);
        }
        co_await pause(&m_with.clock, lockInterval);
    }
    co_return std::unexpected(
        QStringLiteral("Another program is refreshing the same files and did not end within a "
                       "minute."));
}

QuotaSnapshot AppModel::takeStoredSnapshot() {
    auto stored = m_with.store.loadSnapshot();
    if (stored && stored != m_storedSnapshot) {
        m_storedSnapshot = stored;
        m_recordedSnapshot = std::move(stored);
    }
    return m_recordedSnapshot.value_or(model::placeholderSnapshot(m_with.clock.now()));
}

QCoro::Task<RefreshReport> AppModel::runCycle(AskedBy askedBy) {
    const auto locked = co_await lockStore();
    if (!locked) {
        m_lastError = locked.error();
        co_return RefreshReport{.outcome = RefreshReport::Outcome::notSaved};
    }
    const QuotaSnapshot previous = takeStoredSnapshot();
    std::stop_source stopTokens;
    // Tasks start at once and run side by side until each is awaited.
    QCoro::Task<Answers> answersTask = askProviders(previous, askedBy);
    auto tokenTask = m_with.tokenEstimator.estimate(m_with.clock.now(), stopTokens.get_token());

    const Answers answers = co_await answersTask;
    QuotaSnapshot current;
    current.providers = answers.entries;
    current.updatedAt = m_with.clock.now();
    RefreshReport report{.failures = answers.failures};

    if (const auto saved = m_with.store.saveSnapshot(current); !saved) {
        m_lastError = saved.error().message;
        report.outcome = RefreshReport::Outcome::notSaved;
        stopTokens.request_stop();
        co_await tokenTask;
        co_return report;
    }
    m_storedSnapshot = m_with.store.loadSnapshot();

    const auto totals = co_await tokenTask;
    history::UsageHistoryRecorder recorder(m_with.store, m_baselines, m_with.zone);
    const auto recorded = recorder.record(
        previous, current, totals.value_or(history::TokenTotals()), m_with.clock.now());
    if (!recorded) {
        // The stored snapshot is then newer than the one shown, until the next refresh.
        m_lastError = recorded.error().message;
        report.outcome = RefreshReport::Outcome::notSaved;
        co_return report;
    }
    report.uncounted = totals ? recorded->uncounted : history::scanFailureText(totals.error());
    m_recordedSnapshot = current;

    m_history = recorded->history;
    m_snapshot = current;
    m_with.notifier.process(current, m_notificationSettings, m_with.clock.now(), m_with.zone);
    m_lastError = answers.errorLine ? answers.errorLine : report.uncounted;
    m_with.widgetCentre.reloadTimelines(widgetKind);
    m_with.widgetCentre.reloadAllTimelines();
    co_return report;
}

QCoro::Task<AppModel::Answers> AppModel::askProviders(QuotaSnapshot previous, AskedBy askedBy) {
    std::vector<QCoro::Task<providers::QuotaResult>> fetches;
    fetches.reserve(m_with.quotaClients.size());
    for (providers::QuotaClient& client : m_with.quotaClients) {
        fetches.push_back(client.fetch(askedBy)); // starts at once
    }
    Answers answers;
    for (std::size_t i = 0; i < fetches.size(); ++i) {
        const providers::QuotaResult fetched = co_await fetches[i];
        if (fetched) {
            answers.entries.push_back(*fetched);
            continue;
        }
        const AIProvider provider = m_with.quotaClients[i].get().provider();
        const providers::QuotaFailure& failure = fetched.error();
        answers.entries.push_back(staleEntry(previous, provider, failure));
        answers.failures[provider] = failure.text;
        if (failure.shownAt == Place::errorLine && !answers.errorLine) {
            answers.errorLine = failure.text;
        }
    }
    co_return answers;
}

} // namespace tallyvane::core
