#pragma once

#include "app/command_line.h"
#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

/// Prints the stored snapshot, without a refresh.
[[nodiscard]] ExitCode runStatus(const Environment& environment, OutputFormat format);

/// Prints a snapshot for people, with colour on a terminal.
[[nodiscard]] bool printStatusText(const Environment& environment,
                                   const model::QuotaSnapshot& snapshot, model::Timestamp now);

} // namespace tallyvane::app
