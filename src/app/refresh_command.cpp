#include "app/refresh_command.h"

#include "app/status_command.h"
#include "core/app_model.h"
#include "model/quota_display.h"
#include "platform/linux/boot_clock.h"
#include "platform/linux/dbus_application.h"
#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/dbus_widget_centre.h"
#include "platform/linux/secret_service_store.h"

#include <QtNetwork/QNetworkProxyFactory>

namespace tallyvane::app {

namespace {

const QString progressText = QStringLiteral("Asking Codex and Claude ...");

/// Prints what the running program stored.
ExitCode reportStored(const Environment& environment) {
    const auto snapshot = model::SharedStore(environment.locations).loadSnapshot();
    if (!snapshot) {
        printError(QStringLiteral("The running program stored nothing that can be read."));
        return ExitCode::failure;
    }
    bool isCurrent = true;
    for (const model::ProviderQuotaSnapshot& entry : snapshot->providers) {
        if (entry.syncState != model::QuotaSyncState::current) {
            isCurrent = false;
            // Why in full is for the screen alone and not stored.
            printError(QStringLiteral("%1: %2").arg(
                model::displayName(entry.provider),
                entry.statusMessage.value_or(
                    QStringLiteral("Not refreshed; the running program's window tells why."))));
        }
    }
    if (!printStatusText(environment, *snapshot, platform::BootClock().now())) {
        return ExitCode::failure;
    }
    return isCurrent ? ExitCode::success : ExitCode::providerFailed;
}

ExitCode refreshHere(const Environment& environment) {
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    platform::BootClock clock;
    platform::SecretServiceStore secrets;
    platform::DBusWidgetCentre widgetCentre;
    const model::SharedStore store(environment.locations);
    model::DefaultsStore defaults = model::DefaultsStore::openFirst(
        environment.locations.defaultsSuite(), environment.locations.standardDefaults());
    providers::ProcessRunner processRunner(clock);
    providers::CodexQuotaClient codexClient(
        providers::codexCandidates(QString::fromStdString(environment.home.string())),
        processRunner, clock);
    providers::ClaudeQuotaClient claudeClient(
        {.credentialsFile = environment.home / ".claude" / ".credentials.json"}, secrets, clock);
    history::LocalTokenEstimator tokenEstimator(environment.home);
    platform::DBusNotificationCentre notificationCentre;
    notify::QuotaNotifier notifier(notificationCentre);
    core::AppModel model({.store = store,
                          .defaults = defaults,
                          .codexClient = codexClient,
                          .claudeClient = claudeClient,
                          .tokenEstimator = tokenEstimator,
                          .notifier = notifier,
                          .widgetCentre = widgetCentre,
                          .clock = clock});

    core::RefreshReport report;
    {
        const ProgressLine progress(progressText);
        report = QCoro::waitFor(model.refresh());
    }
    for (const auto& [provider, reason] : report.failures) {
        printError(QStringLiteral("%1: %2").arg(model::displayName(provider), reason));
    }
    if (report.outcome == core::RefreshReport::Outcome::notSaved) {
        printError(model.lastError().value_or(QString()));
        return ExitCode::failure;
    }
    if (!printStatusText(environment, model.snapshot(), clock.now())) {
        return ExitCode::failure;
    }
    return report.failures.empty() ? ExitCode::success : ExitCode::providerFailed;
}

} // namespace

ExitCode runRefresh(const Environment& environment) {
    std::expected<bool, platform::CallError> stored = false;
    {
        const ProgressLine progress(progressText);
        stored = platform::refreshRunning();
    }
    if (!stored && stored.error() == platform::CallError::notRunning) {
        return refreshHere(environment);
    }
    if (!stored) {
        printError(QStringLiteral("Tallyvane runs, but does not answer."));
        return ExitCode::failure;
    }
    if (!*stored) {
        printError(QStringLiteral("The running program could not store the result; its window "
                                  "tells why."));
        return ExitCode::failure;
    }
    return reportStored(environment);
}

} // namespace tallyvane::app
