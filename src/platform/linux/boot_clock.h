#pragma once

#include "platform/clock.h"

namespace tallyvane::platform {

/// The machine's clocks: the wall clock for the time, CLOCK_BOOTTIME, which counts suspended time,
/// for alarms.
class BootClock final : public Clock {
public:
    [[nodiscard]] model::Timestamp now() const override;
    [[nodiscard]] std::unique_ptr<Alarm> after(std::chrono::milliseconds delay,
                                               std::function<void()> action) override;
};

} // namespace tallyvane::platform
