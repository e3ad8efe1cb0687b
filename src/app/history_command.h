#pragma once

#include "app/command_line.h"
#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

/// Prints the stored usage history, a row per day and provider.
[[nodiscard]] ExitCode runHistory(const Environment& environment, OutputFormat format);

} // namespace tallyvane::app
