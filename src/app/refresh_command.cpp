#include "app/commands.h"
#include "app/composition.h"
#include "app/refresh_result.h"
#include "app/resource_check.h"
#include "app/status_report.h"
#include "core/preferences.h"
#include "model/foreign_text.h"
#include "model/quota_display.h"
#include "platform/linux/dbus_application.h"
#include "providers/advice.h"

#include <algorithm>

namespace tallyvane::app {

namespace {

/// Erasing it takes a control sequence.
QString progressText(const Environment& environment) {
    QStringList names;
    std::ranges::transform(core::shownProviders(onlyProvider(environment)),
                           std::back_inserter(names), model::displayName);
    return environment.hasDumbTerminal
               ? QString()
               : QStringLiteral("Asking %1 ...").arg(names.join(QStringLiteral(" and ")));
}

void printFailures(const core::RefreshReport& report) {
    for (const auto& [provider, failure] : report.failures) {
        printError(QStringLiteral("%1: %2").arg(model::displayName(provider), failure.text.text()));
        printAdvice(failure.advice.text());
        if (!failure.foundProgram.isEmpty()) {
            printAdvice(providers::codexPathCommand(failure.foundProgram));
        }
    }
    for (const auto& reason : {report.uncounted, report.notSaved}) {
        if (reason) {
            printError(reason->text());
        }
    }
}

ExitCode printResult(const Environment& environment, const RefreshResult& result,
                     OutputFormat format) {
    const bool isStored = result.report.outcome == core::RefreshReport::Outcome::published;
    if (format == OutputFormat::json) {
        const QByteArray json = encodeRefreshResult(result);
        if (!printJson(isTerminal(stdout)
                           ? json
                           : model::maskedAddresses(QString::fromUtf8(json)).toUtf8())) {
            return ExitCode::failure;
        }
    } else {
        printFailures(result.report);
        if (isStored &&
            !printStatusText(environment, shownSnapshot(result.snapshot, onlyProvider(environment)),
                             platform::BootClock().now())) {
            return ExitCode::failure;
        }
    }
    if (!isStored || result.report.uncounted) {
        return ExitCode::failure;
    }
    return result.report.failures.empty() ? ExitCode::success : ExitCode::providerFailed;
}

RefreshResult refreshHere(const Environment& environment) {
    const ProgressLine progress(progressText(environment));
    Composition composition(environment);
    core::RefreshReport report =
        QCoro::waitFor(composition.model.refresh(providers::AskedBy::user));
    return {.report = std::move(report), .snapshot = composition.model.wholeSnapshot()};
}

/// What the running program did.
std::expected<QString, platform::CallError> refreshThere(const Environment& environment) {
    const ProgressLine progress(progressText(environment));
    return platform::refreshRunning();
}

} // namespace

ExitCode runRefresh(const Environment& environment, OutputFormat format) {
    if (!checkResources(refreshResources)) {
        return ExitCode::failure;
    }
    leaveSilentSessionBus();
    const auto reply = refreshThere(environment);
    if (!reply && reply.error() == platform::CallError::notRunning) {
        return printResult(environment, refreshHere(environment), format);
    }
    const auto result = reply ? decodeRefreshResult(reply->toUtf8()) : std::nullopt;
    return result ? printResult(environment, *result, format) : reportNoAnswer();
}

} // namespace tallyvane::app
