#pragma once

#include "history/local_token_estimator.h"
#include "history/usage_history_recorder.h"
#include "model/defaults_store.h"
#include "model/local_zone.h"
#include "model/quota_snapshot.h"
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

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace tallyvane::core {

/// What the model works with; each outlives it.
struct Collaborators {
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

/// What came of one call of AppModel::refresh.
struct RefreshReport {
    enum class Outcome {
        published,      ///< the new figures are saved and shown
        alreadyRunning, ///< another refresh runs; this call did nothing
        notSaved,       ///< a file could not be written; AppModel::lastError says which
    };

    Outcome outcome = Outcome::published;
    std::map<model::AIProvider, QString> failures; ///< per provider that failed: why, for the user
    std::optional<QString> uncounted; ///< for the user: why new tokens are not counted yet
};

/// The program's whole state and its refresh cycle. Main thread only. Its coroutines outlive no
/// event loop, so it outlives the event loop.
class AppModel : public QObject {
    Q_OBJECT

public:
    /// Starts from the given snapshot and history, which are on show only and never stored, else
    /// from the stored ones, else from none.
    explicit AppModel(const Collaborators& with,
                      std::optional<model::QuotaSnapshot> snapshot = std::nullopt,
                      std::optional<history::UsageHistory> history = std::nullopt);

    [[nodiscard]] model::QuotaSnapshot snapshot() const { return m_snapshot; }
    [[nodiscard]] history::UsageHistory history() const { return m_history; }
    [[nodiscard]] bool isRefreshing() const { return m_isRefreshing; }
    /// For the user: why figures, the tokens or the files are not up to date. Of the failures of
    /// providers only those that are shown nowhere else.
    [[nodiscard]] std::optional<QString> lastError() const { return m_lastError; }
    [[nodiscard]] model::AppAppearance appearance() const { return m_appearance; }
    [[nodiscard]] notify::NotificationSettings notificationSettings() const {
        return m_notificationSettings;
    }

    /// Also stores it under "appearance"; lastError() says when that fails.
    void setAppearance(model::AppAppearance appearance);

    /// Also stores them; lastError() says when that fails.
    void setNotificationSettings(const notify::NotificationSettings& settings);

    /// Empties the history, on show and on the disk. The token baselines stay, so that the next
    /// refresh counts only new tokens. What cannot be written is no error here.
    void clearHistory();

    /// Asks all providers, counts local tokens, saves and publishes the result. A provider's
    /// failure is part of the result. While one call runs, others return at once. Waits up to a
    /// minute for another program that refreshes the same files, and builds upon what that stored.
    QCoro::Task<RefreshReport> refresh(providers::AskedBy askedBy);

    /// Calls refresh() for the user and waits for nothing.
    void startRefresh();

    /// Refreshes for the user, or waits for the refresh that runs; whether new figures were
    /// published.
    QCoro::Task<bool> refreshOrJoin();

Q_SIGNALS:
    // Each only when the value really changed.
    void snapshotChanged();
    void historyChanged();
    void isRefreshingChanged();
    void lastErrorChanged();
    void appearanceChanged();
    void notificationSettingsChanged();

private:
    struct Answers {
        std::vector<model::ProviderQuotaSnapshot> entries;
        std::map<model::AIProvider, QString> failures;
        std::optional<QString> errorLine;
    };

    QCoro::Task<Answers> askProviders(model::QuotaSnapshot previous, providers::AskedBy askedBy);
    QCoro::Task<> refreshAlone();
    QCoro::Task<RefreshReport> runCycle(providers::AskedBy askedBy);
    QCoro::Task<std::expected<model::FileLock, QString>> lockStore();
    /// What a refresh builds upon.
    [[nodiscard]] model::QuotaSnapshot takeStoredSnapshot();
    void tellOf(const std::expected<void, model::FileError>& saved);

    Collaborators m_with;
    history::TokenBaselines m_baselines;
    /// As this program read or wrote it last; others may write it too.
    std::optional<model::QuotaSnapshot> m_storedSnapshot;
    /// Up to which the history counts. Not what is on show when that is made up.
    std::optional<model::QuotaSnapshot> m_recordedSnapshot;
    QFuture<RefreshReport> m_end; ///< of the last refresh
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, model::QuotaSnapshot, m_snapshot,
                               &AppModel::snapshotChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, history::UsageHistory, m_history,
                               &AppModel::historyChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_isRefreshing, &AppModel::isRefreshingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<QString>, m_lastError,
                               &AppModel::lastErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, model::AppAppearance, m_appearance,
                               &AppModel::appearanceChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, notify::NotificationSettings, m_notificationSettings,
                               &AppModel::notificationSettingsChanged)
};

} // namespace tallyvane::core
