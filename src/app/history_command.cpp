#include "app/commands.h"
#include "app/composition.h"
#include "core/fixtures.h"
#include "core/preferences.h"
#include "history/calendar_days.h"
#include "history/usage_history.h"
#include "model/quota_display.h"
#include "platform/linux/boot_clock.h"

namespace tallyvane::app {

namespace {

std::optional<history::UsageHistory> shownHistory(const Environment& environment) {
    if (environment.launchContext.isFixtureMode) {
        return core::fixtureHistory(platform::BootClock().now(), environment.zone);
    }
    return history::loadHistory(model::SharedStore(environment.locations));
}

QString table(const history::UsageHistory& history, const model::LocalZone& zone) {
    QString text = QStringLiteral("Day         Provider  Weekly quota          Tokens\n");
    for (const history::UsageHistoryPoint& point : history.points) {
        text += QStringLiteral("%1  %2  %3%  %4\n")
                    .arg(history::localDay(point.date, zone).toString(Qt::ISODate))
                    .arg(model::displayName(point.provider), -8)
                    .arg(point.estimatedQuotaConsumed, 11, 'f', 1)
                    .arg(point.estimatedLocalTokens, 14);
    }
    return text;
}

} // namespace

ExitCode runHistory(const Environment& environment, OutputFormat format) {
    const auto history = shownHistory(environment);
    if (!history) {
        printError(QStringLiteral("No history is stored yet; each refresh adds to it."));
        return ExitCode::nothingStored;
    }
    const history::UsageHistory shown =
        history::withProviders(*history, core::shownProviders(onlyProvider(environment)));
    // What was decoded can be encoded.
    const bool isPrinted = format == OutputFormat::json
                               ? print(QString::fromUtf8(*history::encodeHistory(*history)) + u'\n')
                               : print(table(shown, environment.zone));
    return isPrinted ? ExitCode::success : ExitCode::failure;
}

} // namespace tallyvane::app
