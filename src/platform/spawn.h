#pragma once

#include <QCoro/QCoroTask>

namespace tallyvane::platform {

/// Lets `task` run to its end with nobody awaiting it. An exception that escapes from it ends the
/// program. What the task uses must outlive the event loop.
void spawn(QCoro::Task<> task);

} // namespace tallyvane::platform
