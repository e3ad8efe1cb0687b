#pragma once

#include "app/command_line.h"
#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

// The commands of the command line. Those that use the session bus need a QCoreApplication.

/// Runs one refresh cycle and prints its result, with the reason for each failure and what to do
/// about it on standard error. A running desktop program does the refresh instead, so that two
/// programs never write at once.
[[nodiscard]] ExitCode runRefresh(const Environment& environment, OutputFormat format);

/// Prints the stored snapshot, without a refresh: as text, the providers that are shown, or the one
/// chosen; as JSON, all that is stored. Fails when the lowest five-hour percentage left
/// of the providers shown is under `choice.below`.
[[nodiscard]] ExitCode runStatus(const Environment& environment, OutputFormat format,
                                 const StatusChoice& choice);

/// Prints how the stored use compares with an even one: as text, of the providers that are shown,
/// or as JSON, of all.
[[nodiscard]] ExitCode runPace(const Environment& environment, OutputFormat format);

/// Prints a snapshot in human-readable form, in colour where the user wants that.
[[nodiscard]] bool printStatusText(const Environment& environment,
                                   const model::QuotaSnapshot& snapshot, model::Timestamp now);

/// Prints the stored usage history, a row per day and provider that is shown or chosen; as JSON,
/// all of it.
[[nodiscard]] ExitCode runHistory(const Environment& environment, OutputFormat format,
                                  const HistoryChoice& choice);

/// Counts the tokens in the local session logs and prints the totals, the files counted and
/// skipped, the bytes read and the time taken.
[[nodiscard]] ExitCode runTokens(const Environment& environment, OutputFormat format);

/// Checks everything that figures depend on and prints a line per check, with what to do about each
/// fault; of a hidden provider, only that it is. Starts no program that the user has not chosen;
/// sends a request to the Claude service only if `isOnline`. Succeeds if a refresh would work for
/// at least one provider.
[[nodiscard]] ExitCode runDoctor(const Environment& environment, OutputFormat format,
                                 bool isOnline);

/// Shows or changes the settings: `words` are "list", "get KEY", "set KEY VALUE" or "unset KEY". A
/// running program takes a change at once.
[[nodiscard]] ExitCode runConfig(const Environment& environment, const QStringList& words);

/// Replaces this process with `tallyvane-desktop`, from this program's folder or from libexec,
/// whose argument 0 is then this program's absolute path. If a desktop program is already running,
/// shows its window instead, unless starting in the background. Returns only in that case or on
/// failure.
[[nodiscard]] ExitCode runStart(const Environment& environment, StartMode mode);

/// Reports that the program is running but does not answer.
[[nodiscard]] ExitCode reportNoAnswer();

} // namespace tallyvane::app

/// Entry point of the library with the commands that `tallyvane` does not hold itself, for one of
/// which `commandLine` asks. Needs a QCoreApplication.
extern "C" Q_DECL_EXPORT tallyvane::app::ExitCode
tallyvaneRunCommand(const tallyvane::app::CommandLine& commandLine);
