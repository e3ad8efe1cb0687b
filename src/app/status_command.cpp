#include "app/commands.h"
#include "app/pace_report.h"
#include "app/status_format.h"
#include "app/status_report.h"
#include "core/fixtures.h"
#include "model/quota_display.h"
#include "platform/linux/boot_clock.h"

namespace tallyvane::app {

bool printStatusText(const Environment& environment, const model::QuotaSnapshot& snapshot,
                     model::Timestamp now) {
    const model::WeekdayTimeFormat weekdayTime(environment.timeLocale, environment.zone);
    const bool isColoured = environment.colour == ColourUse::always ||
                            (environment.colour == ColourUse::onTerminal && isTerminal(stdout));
    return printStyled(
        statusText(snapshot, now, weekdayTime, isColoured ? Palette::ansi : Palette::plain));
}

namespace {

std::optional<model::QuotaSnapshot> storedSnapshot(const Environment& environment,
                                                   model::Timestamp now) {
    if (environment.launchContext.isFixtureMode) {
        return core::fixtureSnapshot(now, environment.zone);
    }
    return model::SharedStore(environment.locations).loadSnapshot();
}

ExitCode printed(bool isPrinted) {
    return isPrinted ? ExitCode::success : ExitCode::failure;
}

ExitCode printFormatted(const Environment& environment, const QString& format,
                        const model::QuotaSnapshot& shown, model::Timestamp now) {
    const model::WeekdayTimeFormat weekdayTime(environment.timeLocale, environment.zone);
    const auto text = formattedStatus(format, shown, now, weekdayTime);
    return text ? printed(printStyled(*text + u'\n')) : reportMisuse(text.error());
}

ExitCode reportNothingStored() {
    printError(QStringLiteral("Nothing is stored yet; 'tallyvane refresh' asks the providers."));
    return ExitCode::nothingStored;
}

/// What a script learns from the exit status.
ExitCode judged(const model::QuotaSnapshot& shown, std::optional<int> below) {
    if (!below) {
        return ExitCode::success;
    }
    const auto lowest = model::lowestRemainingPercent(shown);
    if (!lowest) {
        return ExitCode::nothingStored;
    }
    return *lowest < *below ? ExitCode::failure : ExitCode::success;
}

} // namespace

ExitCode runStatus(const Environment& environment, OutputFormat format,
                   const StatusChoice& choice) {
    const model::Timestamp now = platform::BootClock().now();
    const auto stored = storedSnapshot(environment, now);
    const auto only = choice.provider ? choice.provider : onlyProvider(environment);
    const model::QuotaSnapshot shown =
        shownSnapshot(stored.value_or(model::placeholderSnapshot(now)), only);
    ExitCode result = ExitCode::success;
    switch (format) {
    case OutputFormat::text:
    case OutputFormat::csv: // of `history` alone
        result = printed(!stored || printStatusText(environment, shown, now));
        break;
    case OutputFormat::json:
        // What was decoded can be encoded.
        result = printed(!stored || printJson(model::encodeSnapshot(*stored).value()));
        break;
    case OutputFormat::waybar:
        result = printed(print(waybarLine(shown, now)));
        break;
    case OutputFormat::fields:
        result = printFormatted(environment, choice.format, shown, now);
        break;
    }
    if (result != ExitCode::success) {
        return result;
    }
    if (!stored) {
        return reportNothingStored();
    }
    return judged(shown, choice.below);
}

ExitCode runPace(const Environment& environment, OutputFormat format) {
    const model::Timestamp now = platform::BootClock().now();
    const auto stored = storedSnapshot(environment, now);
    if (!stored) {
        return reportNothingStored();
    }
    return printed(format == OutputFormat::json
                       ? print(QString::fromUtf8(paceJson(*stored, now)))
                       : print(paceTable(shownSnapshot(*stored, onlyProvider(environment)), now)));
}

} // namespace tallyvane::app
