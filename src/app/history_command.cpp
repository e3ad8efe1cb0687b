#include "app/commands.h"
#include "core/fixtures.h"
#include "core/preferences.h"
#include "history/calendar_days.h"
#include "history/history_csv.h"
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

ExitCode runHistory(const Environment& environment, OutputFormat format,
                    const HistoryChoice& choice) {
    const auto history = shownHistory(environment);
    if (!history) {
        printError(QStringLiteral("No history is stored yet; each refresh adds to it."));
        return ExitCode::nothingStored;
    }
    const auto only = choice.provider ? choice.provider : onlyProvider(environment);
    history::UsageHistory shown = history::withProviders(*history, core::shownProviders(only));
    std::erase_if(shown.points, [&](const history::UsageHistoryPoint& point) {
        return choice.since && history::localDay(point.date, environment.zone) < *choice.since;
    });
    QString text;
    switch (format) {
    case OutputFormat::json:
        // What was decoded can be encoded.
        text = QString::fromUtf8(*history::encodeHistory(*history)) + u'\n';
        break;
    case OutputFormat::csv:
        text = history::csvText(shown, environment.zone);
        break;
    default:
        text = table(shown, environment.zone);
        break;
    }
    return print(text) ? ExitCode::success : ExitCode::failure;
}

} // namespace tallyvane::app
