#pragma once

#include "model/timestamp.h"

#include <chrono>
#include <functional>
#include <memory>

namespace tallyvane::platform {

/// A pending call; destroying it cancels the call.
class Alarm {
public:
    Alarm() = default;
    virtual ~Alarm() = default;
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;
};

/// Whether the delay of an alarm includes time in which the machine is suspended.
enum class SuspendedTime { counts, doesNotCount };

/// Tells the time and wakes its caller later. Main thread only.
class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual model::Timestamp now() const = 0;

    /// Calls `action` once from the event loop after `delay`, unaffected by changes of the wall
    /// clock. `action` may destroy the alarm.
    [[nodiscard]] virtual std::unique_ptr<Alarm>
    after(std::chrono::milliseconds delay, std::function<void()> action,
          SuspendedTime suspended = SuspendedTime::counts) = 0;
};

} // namespace tallyvane::platform
