#include "app/commands.h"
#include "app/composition.h"
#include "app/resource_check.h"
#include "model/quota_display.h"
#include "platform/linux/dbus_application.h"

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
            // The full reason is shown on screen only, never stored.
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
    Composition composition(environment);
    core::AppModel& model = composition.model;
    core::RefreshReport report;
    {
        const ProgressLine progress(progressText);
        report = QCoro::waitFor(model.refresh(providers::AskedBy::user));
    }
    for (const auto& [provider, reason] : report.failures) {
        printError(QStringLiteral("%1: %2").arg(model::displayName(provider), reason));
    }
    if (report.uncounted) {
        printError(*report.uncounted);
    }
    if (report.outcome == core::RefreshReport::Outcome::notSaved) {
        printError(model.lastError().value_or(QString()));
        return ExitCode::failure;
    }
    if (!printStatusText(environment, model.snapshot(), composition.clock.now()) ||
        report.uncounted) {
        return ExitCode::failure;
    }
    return report.failures.empty() ? ExitCode::success : ExitCode::providerFailed;
}

} // namespace

ExitCode runRefresh(const Environment& environment) {
    if (!checkResources(refreshResources)) {
        return ExitCode::failure;
    }
    leaveSilentSessionBus();
    std::expected<bool, platform::CallError> stored = false;
    {
        const ProgressLine progress(progressText);
        stored = platform::refreshRunning();
    }
    if (!stored && stored.error() == platform::CallError::notRunning) {
        return refreshHere(environment);
    }
    if (!stored) {
        return reportNoAnswer();
    }
    if (!*stored) {
        printError(QStringLiteral("The running program could not store the result; its window "
                                  "tells why."));
        return ExitCode::failure;
    }
    return reportStored(environment);
}

} // namespace tallyvane::app
