#include "core/app_model.h"

#include "history/usage_history_recorder.h"
#include "platform/spawn.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>

#include <stop_token>

namespace tallyvane::core {

using model::AIProvider;
using model::ProviderQuotaSnapshot;
using model::QuotaSnapshot;
using model::QuotaSyncState;

namespace {

const QString appearanceKey = QStringLiteral("appearance");
const QString widgetKind = QStringLiteral("GaugewellWidget");

} // namespace

std::optional<QString> shortText(const providers::ClaudeFetchError& error) {
    if (std::holds_alternative<providers::TransportError>(error)) {
        return QStringLiteral("Network error");
    }
    using Kind = providers::ClaudeQuotaError::Kind;
    const auto& quotaError = std::get<providers::ClaudeQuotaError>(error);
    switch (quotaError.kind) {
    case Kind::noCredentials:
        return QStringLiteral("Keychain auth");
    case Kind::tokenExpired:
        return QStringLiteral("Sign-in expired");
    case Kind::rateLimited:
        return QStringLiteral("Rate limited");
    case Kind::httpStatus:
        return quotaError.httpStatus == 401 ? std::optional(QStringLiteral("Sign-in expired"))
                                            : std::nullopt;
    case Kind::malformedResponse:
        break;
    }
    return std::nullopt;
}

AppModel::AppModel(const Collaborators& with, std::optional<QuotaSnapshot> snapshot,
                   std::optional<history::UsageHistory> history)
    : m_with(with) {
    if (!snapshot) {
        snapshot = with.store.loadSnapshot();
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
    m_with.defaults.setText(appearanceKey, model::rawValue(appearance));
    m_appearance = appearance;
}

void AppModel::setNotificationSettings(const notify::NotificationSettings& settings) {
    notify::saveNotificationSettings(m_with.defaults, settings);
    m_notificationSettings = settings;
}

void AppModel::clearHistory() {
    m_history = history::UsageHistory{};
    (void)history::saveHistory(m_with.store, m_history);
}

void AppModel::startRefresh() {
    platform::spawn(refreshAlone());
}

QCoro::Task<> AppModel::refreshAlone() {
    co_await refresh();
}

QCoro::Task<RefreshReport> AppModel::refresh() {
    if (m_isRefreshing) {
        co_return RefreshReport{.outcome = RefreshReport::Outcome::alreadyRunning};
    }
    QPromise<RefreshReport> end;
    end.start();
    m_end = end.future();
    m_isRefreshing = true;
    RefreshReport report = co_await runCycle();
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

QCoro::Task<RefreshReport> AppModel::runCycle() {
    std::stop_source stopTokens;
    // Tasks start at once and run side by side until each is awaited.
    QCoro::Task<FetchedEntry> codexTask = fetchCodex();
    QCoro::Task<FetchedEntry> claudeTask = fetchClaude();
    auto tokenTask = m_with.tokenEstimator.estimate(stopTokens.get_token());
    const QuotaSnapshot previous = m_snapshot;

    const FetchedEntry codex = co_await codexTask;
    const FetchedEntry claude = co_await claudeTask;
    QuotaSnapshot current;
    current.providers = {codex.entry, claude.entry};
    current.updatedAt = m_with.clock.now();

    RefreshReport report;
    for (const FetchedEntry& fetched : {codex, claude}) {
        if (fetched.failure) {
            report.failures[fetched.entry.provider] = *fetched.failure;
        }
    }

    if (const auto saved = m_with.store.saveSnapshot(current); !saved) {
        m_lastError = saved.error().message;
        report.outcome = RefreshReport::Outcome::notSaved;
        stopTokens.request_stop();
        co_await tokenTask;
        co_return report;
    }

    const auto totals = co_await tokenTask;
    if (!totals) {
        report.tokensFailure = totals.error().message;
    }
    history::UsageHistoryRecorder recorder(m_with.store, m_with.defaults,
                                           QTimeZone::systemTimeZone());
    const auto recorded = recorder.record(
        previous, current, totals.value_or(history::TokenTotals{}), current.updatedAt);
    if (!recorded) {
        // The stored snapshot is then newer than the one shown, until the next refresh.
        m_lastError = recorded.error().message;
        report.outcome = RefreshReport::Outcome::notSaved;
        co_return report;
    }

    m_history = *recorded;
    m_snapshot = current;
    m_with.notifier.process(current, m_notificationSettings, m_with.clock.now(),
                            QTimeZone::systemTimeZone());
    m_lastError = codex.failure ? codex.failure : report.tokensFailure;
    m_with.widgetCentre.reloadTimelines(widgetKind);
    m_with.widgetCentre.reloadAllTimelines();
    co_return report;
}

QCoro::Task<AppModel::FetchedEntry> AppModel::fetchCodex() {
    const auto fetched = co_await m_with.codexClient.fetch();
    if (fetched) {
        co_return FetchedEntry{.entry = *fetched};
    }
    co_return FetchedEntry{.entry = staleEntry(AIProvider::codex),
                           .failure = providers::description(fetched.error())};
}

QCoro::Task<AppModel::FetchedEntry> AppModel::fetchClaude() {
    const auto fetched = co_await m_with.claudeClient.fetch();
    if (fetched) {
        co_return FetchedEntry{.entry = *fetched};
    }
    FetchedEntry stale{.entry = staleEntry(AIProvider::claude),
                       .failure = providers::description(fetched.error())};
    stale.entry.statusMessage = shortText(fetched.error());
    co_return stale;
}

ProviderQuotaSnapshot AppModel::staleEntry(AIProvider provider) const {
    ProviderQuotaSnapshot entry = model::entryFor(m_snapshot, provider);
    entry.syncState = entry.syncedAt ? QuotaSyncState::pending : QuotaSyncState::unavailable;
    return entry;
}

} // namespace tallyvane::core
