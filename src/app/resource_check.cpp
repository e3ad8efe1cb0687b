#include "app/resource_check.h"

#include "app/terminal.h"

namespace tallyvane::app {

bool checkResources(platform::SpareResources needed) {
    const auto spare = platform::trySpare(needed);
    if (!spare) {
        printError(QStringLiteral("The system gives this program too few open files, processes or "
                                  "threads: %1.")
                       .arg(spare.error()));
    }
    return spare.has_value();
}

} // namespace tallyvane::app
