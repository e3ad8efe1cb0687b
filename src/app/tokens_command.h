#pragma once

#include "app/command_line.h"
#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

/// Counts the tokens in the local session logs and prints the totals, the files counted and
/// skipped, the bytes read and the time taken.
[[nodiscard]] ExitCode runTokens(const Environment& environment, OutputFormat format);

} // namespace tallyvane::app
