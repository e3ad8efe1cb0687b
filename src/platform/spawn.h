#pragma once

#include <QCoro/QCoroTask>

namespace tallyvane::platform {

/// Runs `task` to its end without being awaited. An exception that escapes from it aborts the
/// program. What the task uses must outlive the event loop: a suspended coroutine resumes on it.
void spawn(QCoro::Task<> task);

} // namespace tallyvane::platform
