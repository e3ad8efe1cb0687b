#pragma once

#include "model/timestamp.h"

#include <chrono>
#include <functional>
#include <memory>

namespace tallyvane::platform {

/// A pending call; destroying it before its time cancels the call.
class Alarm {
public:
    Alarm() = default;
    virtual ~Alarm() = default;
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;
};

/// Tells the time and wakes its caller later. Main thread only.
class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual model::Timestamp now() const = 0;

    /// Calls `action` once from the event loop when `delay` has passed. Time in which the machine
    /// was suspended counts; changes of the wall clock do not. `action` may destroy the alarm.
    [[nodiscard]] virtual std::unique_ptr<Alarm> after(std::chrono::milliseconds delay,
                                                       std::function<void()> action) = 0;
};

} // namespace tallyvane::platform
