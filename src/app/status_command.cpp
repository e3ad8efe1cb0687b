#include "app/commands.h"
#include "app/status_report.h"
#include "core/fixtures.h"
#include "platform/linux/boot_clock.h"

namespace tallyvane::app {

bool printStatusText(const Environment& environment, const model::QuotaSnapshot& snapshot,
                     model::Timestamp now) {
    const model::WeekdayTimeFormat weekdayTime(environment.timeLocale, environment.zone);
    const Palette palette =
        environment.wantsColour && isTerminal(stdout) ? Palette::ansi : Palette::plain;
    return print(statusText(snapshot, now, weekdayTime, palette));
}

ExitCode runStatus(const Environment& environment, OutputFormat format) {
    const model::Timestamp now = platform::BootClock().now();
    const auto snapshot = environment.launchContext.isFixtureMode
                              ? core::fixtureSnapshot(now, environment.zone)
                              : model::SharedStore(environment.locations).loadSnapshot();
    if (!snapshot) {
        printError(
            QStringLiteral("Nothing is stored yet; 'tallyvane refresh' asks the providers."));
        const bool isPrinted = format != OutputFormat::waybar ||
                               print(waybarLine(model::placeholderSnapshot(now), now));
        return isPrinted ? ExitCode::nothingStored : ExitCode::failure;
    }
    bool isPrinted = false;
    switch (format) {
    case OutputFormat::text:
        isPrinted = printStatusText(environment, *snapshot, now);
        break;
    case OutputFormat::json:
        // What was decoded can be encoded.
        isPrinted = print(QString::fromUtf8(model::encodeSnapshot(*snapshot).value()) + u'\n');
        break;
    case OutputFormat::waybar:
        isPrinted = print(waybarLine(*snapshot, now));
        break;
    }
    return isPrinted ? ExitCode::success : ExitCode::failure;
}

} // namespace tallyvane::app
