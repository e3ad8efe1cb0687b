#pragma once

#include "app/command_line.h"
#include "app/environment.h"
#include "app/terminal.h"

namespace tallyvane::app {

/// Replaces this process by the desktop program, `tallyvane-desktop`, beside this program or in the
/// folder for programs that users do not start. Its argument 0 is the absolute path of this
/// program. When a desktop program runs already, that one shows its window instead, but not for a
/// start in the background. Returns only then and when there is no desktop program. Needs a
/// QCoreApplication.
[[nodiscard]] ExitCode runStart(const Environment& environment, StartMode mode);

/// Says that the program runs and does not answer.
[[nodiscard]] ExitCode reportNoAnswer();

} // namespace tallyvane::app
