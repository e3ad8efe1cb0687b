#include "platform/spawn.h"

#include <exception>

namespace tallyvane::platform {

namespace {

QCoro::Task<> guarded(QCoro::Task<> task) {
    try {
        co_await task;
    } catch (const std::exception& error) {
        qFatal("a background task failed: %s", error.what());
    } catch (...) {
        qFatal("a background task failed");
    }
}

} // namespace

void spawn(QCoro::Task<> task) {
    // A dropped task is not cancelled: the frame, which owns `task`, lives until it returns.
    guarded(std::move(task));
}

} // namespace tallyvane::platform
