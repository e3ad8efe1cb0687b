#pragma once

#include "platform/clock.h"

namespace tallyvane::platform {

/// The machine's clocks: the wall clock for the time; for alarms CLOCK_BOOTTIME, which counts
/// suspended time, or CLOCK_MONOTONIC, which does not. When the system has no descriptor left for
/// an alarm, that one does not count suspended time.
class BootClock final : public Clock {
public:
    [[nodiscard]] model::Timestamp now() const override;
    [[nodiscard]] std::unique_ptr<Alarm>
    after(std::chrono::milliseconds delay, std::function<void()> action,
          SuspendedTime suspended = SuspendedTime::counts) override;
};

} // namespace tallyvane::platform
