#pragma once

#include "app/command_line.h"
#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

// The commands of the command line. Those that use the session bus need a QCoreApplication.

/// Runs one refresh cycle and prints its result, with the reason for each failure on standard
/// error. A running desktop program does the refresh instead, so that two programs never write at
/// once.
[[nodiscard]] ExitCode runRefresh(const Environment& environment);

/// Prints the stored snapshot, without a refresh.
[[nodiscard]] ExitCode runStatus(const Environment& environment, OutputFormat format);

/// Prints a snapshot in human-readable form, coloured on a terminal.
[[nodiscard]] bool printStatusText(const Environment& environment,
                                   const model::QuotaSnapshot& snapshot, model::Timestamp now);

/// Prints the stored usage history, a row per day and provider.
[[nodiscard]] ExitCode runHistory(const Environment& environment, OutputFormat format);

/// Counts the tokens in the local session logs and prints the totals, the files counted and
/// skipped, the bytes read and the time taken.
[[nodiscard]] ExitCode runTokens(const Environment& environment, OutputFormat format);

/// Replaces this process with `tallyvane-desktop`, from this program's folder or from libexec,
/// whose argument 0 is then this program's absolute path. If a desktop program is already running,
/// shows its window instead, unless starting in the background. Returns only in that case or on
/// failure.
[[nodiscard]] ExitCode runStart(const Environment& environment, StartMode mode);

/// Reports that the program is running but does not answer.
[[nodiscard]] ExitCode reportNoAnswer();

} // namespace tallyvane::app
