#pragma once

#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

/// Runs one refresh cycle and prints its result, and each failure's reason on standard error. When
/// the desktop program runs, the cycle is that program's, so that never two write at once. Needs a
/// QCoreApplication.
[[nodiscard]] ExitCode runRefresh(const Environment& environment);

} // namespace tallyvane::app
