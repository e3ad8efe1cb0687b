#pragma once

#include "platform/clock.h"

namespace tallyvane::platform {

/// The machine's wall clock, and alarms by CLOCK_BOOTTIME, which counts suspended time, or
/// CLOCK_MONOTONIC, which does not. An alarm for which the system has no descriptor left does not
/// count suspended time.
class BootClock final : public Clock {
public:
    [[nodiscard]] model::Timestamp now() const override;
    [[nodiscard]] std::unique_ptr<Alarm>
    after(std::chrono::milliseconds delay, std::function<void()> action,
          SuspendedTime suspended = SuspendedTime::counts) override;
};

} // namespace tallyvane::platform
