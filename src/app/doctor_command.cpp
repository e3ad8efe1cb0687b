#include "app/commands.h"

namespace tallyvane::app {

ExitCode runDoctor(const Environment&, OutputFormat, bool) {
    return ExitCode::failure;
}

} // namespace tallyvane::app
