#include "app/refresh_command.h"

#include "app/status_command.h"
#include "core/app_model.h"
#include "model/quota_display.h"
#include "platform/linux/boot_clock.h"
#include "platform/linux/dbus_notification_centre.h"
#include "platform/linux/dbus_widget_centre.h"
#include "platform/linux/secret_service_store.h"

#include <QtNetwork/QNetworkProxyFactory>

namespace tallyvane::app {

ExitCode runRefresh(const Environment& environment) {
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
        const ProgressLine progress(QStringLiteral("Asking Codex and Claude ..."));
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

} // namespace tallyvane::app
