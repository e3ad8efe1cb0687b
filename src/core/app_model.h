#pragma once

#include "core/launch_context.h"
#include "history/local_token_estimator.h"
#include "history/usage_history_recorder.h"
#include "model/defaults_store.h"
#include "model/local_zone.h"
#include "model/quota_snapshot.h"
#include "model/recent_use.h"
#include "model/shared_store.h"
#include "notify/notification_settings.h"
#include "notify/quota_notifier.h"
#include "platform/clock.h"
#include "platform/widget_centre.h"
#include "providers/quota_client.h"

#include <QCoro/QCoroTask>
#include <QtCore/QFuture>
#include <QtCore/QObject>
#include <QtCore/QProperty>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace tallyvane::core {

/// From the end of one automatic refresh to the start of the next, including time in which the
/// machine is suspended.
inline constexpr std::chrono::seconds refreshInterval{300};

/// What the model uses. Everything referred to must outlive it.
struct Services {
    const model::SharedStore& store;
    model::DefaultsStore& defaults; ///< preferences and token baselines
    /// One per provider, in the order of the snapshot's entries.
    std::vector<std::reference_wrapper<providers::QuotaClient>> quotaClients;
    history::LocalTokenEstimator& tokenEstimator;
    notify::QuotaNotifier& notifier;
    platform::WidgetCentre& widgetCentre;
    platform::Clock& clock;
    model::LocalZone zone;
};

/// Why providers gave no figures.
using Failures = std::map<model::AIProvider, providers::QuotaFailure>;

/// The result of AppModel::refresh.
struct RefreshReport {
    enum class Outcome {
        published,      ///< the new figures are saved and shown
        alreadyRunning, ///< another refresh was in progress, so this call did nothing
        notSaved,       ///< a file could not be written
    };

    Outcome outcome = Outcome::published;
    Failures failures;
    std::optional<model::Message> uncounted; ///< if new tokens were not counted
    std::optional<model::Message> notSaved;  ///< why the result was not saved
};

/// The program's state and its refresh cycle. Main thread only. Must outlive the event loop:
/// suspended coroutines resume on it.
class AppModel : public QObject {
    Q_OBJECT

public:
    /// Shows the given snapshot and history, which are never stored, or else loads the stored ones.
    explicit AppModel(const Services& services,
                      std::optional<model::QuotaSnapshot> snapshot = std::nullopt,
                      std::optional<history::UsageHistory> history = std::nullopt);

    // What is shown: nothing of a hidden provider.

    /// Holds one entry for each of shownProviders().
    [[nodiscard]] model::QuotaSnapshot snapshot() const { return m_snapshot; }
    [[nodiscard]] history::UsageHistory history() const { return m_history; }
    [[nodiscard]] bool isRefreshing() const { return m_isRefreshing; }
    /// Set if the last refresh or save failed. A provider's failure appears here
    /// only if it is not shown beside that provider's figures.
    [[nodiscard]] std::optional<model::Message> lastError() const { return m_lastError; }
    /// Why providers gave no figures in the last refresh. Before the first one ends, what the shown
    /// snapshot tells of an earlier run.
    [[nodiscard]] Failures failures() const { return m_failures; }

    /// How fast the quotas were used of late, as far as this process has seen that.
    [[nodiscard]] model::RecentRates recentRates() const { return m_recentUse.rates(); }

    /// The snapshot of all providers, as it is stored.
    [[nodiscard]] model::QuotaSnapshot wholeSnapshot() const { return m_wholeSnapshot; }
    /// Nothing if all are shown.
    [[nodiscard]] std::optional<model::AIProvider> onlyProvider() const { return m_onlyProvider; }
    [[nodiscard]] std::vector<model::AIProvider> shownProviders() const;
    [[nodiscard]] model::AppAppearance appearance() const { return m_appearance; }
    [[nodiscard]] notify::NotificationSettings notificationSettings() const {
        return m_notificationSettings;
    }

    /// Whether to notify when a quota runs low, in the times of notificationSettings().
    [[nodiscard]] bool warnsOfLowQuota() const { return m_warnsOfLowQuota; }

    /// Also stores it under "appearance"; a failure to do so goes to lastError().
    void setAppearance(model::AppAppearance appearance);

    /// Shows one provider alone, or all, at once, and stores that; a failure to do so goes to
    /// lastError(). The figures of one that was hidden are as old as that until the next refresh.
    void setOnlyProvider(std::optional<model::AIProvider> only);

    /// Also stores them; a failure to do so goes to lastError().
    void setNotificationSettings(const notify::NotificationSettings& settings);

    /// Also stores it; a failure to do so goes to lastError().
    void setWarnsOfLowQuota(bool warns);

    /// Takes over what another program has stored: the appearance, the provider shown alone and the
    /// settings of notifications.
    void reloadPreferences();

    /// Empties the history, in memory and on disk; write errors are ignored. Keeps the token
    /// baselines, so that the next refresh counts only new tokens.
    void clearHistory();

    /// Asks the providers that are shown, counts local tokens, saves and publishes the result.
    /// Succeeds even if providers fail. Returns at once if another call is in progress. Waits up to
    /// a minute for another process that is refreshing the same files, and builds on what that
    /// process stored.
    QCoro::Task<RefreshReport> refresh(providers::AskedBy askedBy);

    /// Starts a refresh on the user's behalf.
    void startRefresh();

    /// Refreshes at once and again after each refreshInterval. Does nothing under a test host or in
    /// fixture mode.
    void startAutoRefresh(const LaunchContext& context);

    /// Refreshes on the user's behalf, or waits for the refresh in progress.
    QCoro::Task<RefreshReport> refreshOrJoin();

Q_SIGNALS:
    /// After reloadPreferences(): other settings may have changed too.
    void preferencesReloaded();
    // Emitted only when the value differs.
    void snapshotChanged();
    void historyChanged();
    void isRefreshingChanged();
    void lastErrorChanged();
    void failuresChanged();
    void appearanceChanged();
    void onlyProviderChanged();
    void notificationSettingsChanged();
    void warnsOfLowQuotaChanged();

private:
    struct Answers {
        std::vector<model::ProviderQuotaSnapshot> entries;
        Failures failures;
    };

    QCoro::Task<Answers> askProviders(model::QuotaSnapshot previous, providers::AskedBy askedBy);
    QCoro::Task<> refreshForUser();
    QCoro::Task<> refreshRepeatedly();
    QCoro::Task<RefreshReport> runCycle(providers::AskedBy askedBy);
    QCoro::Task<std::expected<model::FileLock, model::Message>> lockStore();
    [[nodiscard]] bool isShown(model::AIProvider provider) const;
    void show(std::optional<model::AIProvider> only);
    /// Shows what is to be seen of the whole figures.
    void publish(std::optional<model::AIProvider> only);
    /// The figures that the next refresh is compared with.
    [[nodiscard]] model::QuotaSnapshot previousSnapshot();
    void showError(const std::expected<void, model::FileError>& saved);
    RefreshReport notSaved(RefreshReport report, const model::Message& reason);

    Services m_services;
    history::TokenBaselines m_baselines;
    /// The file as this process last read or wrote it; other processes write it too.
    std::optional<model::QuotaSnapshot> m_storedSnapshot;
    model::QuotaSnapshot m_wholeSnapshot;
    history::UsageHistory m_wholeHistory;
    model::RecentUse m_recentUse;
    Failures m_allFailures;
    /// The last snapshot that the history accounts for. Differs from `m_wholeSnapshot` in fixture
    /// mode.
    std::optional<model::QuotaSnapshot> m_recordedSnapshot;
    QFuture<RefreshReport> m_end; ///< of the latest refresh
    std::unique_ptr<platform::Alarm> m_nextRefresh;
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, model::QuotaSnapshot, m_snapshot,
                               &AppModel::snapshotChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, history::UsageHistory, m_history,
                               &AppModel::historyChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_isRefreshing, &AppModel::isRefreshingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<model::Message>, m_lastError,
                               &AppModel::lastErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, Failures, m_failures, &AppModel::failuresChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, model::AppAppearance, m_appearance,
                               &AppModel::appearanceChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<model::AIProvider>, m_onlyProvider,
                               &AppModel::onlyProviderChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, notify::NotificationSettings, m_notificationSettings,
                               &AppModel::notificationSettingsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_warnsOfLowQuota, &AppModel::warnsOfLowQuotaChanged)
};

} // namespace tallyvane::core
