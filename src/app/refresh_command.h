#pragma once

#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

/// Runs one refresh cycle in this process and prints its result, and each failure's reason on
/// standard error. Needs a QCoreApplication.
[[nodiscard]] ExitCode runRefresh(const Environment& environment);

} // namespace tallyvane::app
