#pragma once

#include "core/app_model.h"
#include "core/launch_context.h"
#include "platform/clock.h"

#include <chrono>
#include <memory>

namespace tallyvane::core {

/// From one refresh's end to the next one's start. Time in which the machine is suspended counts.
inline constexpr std::chrono::seconds refreshInterval{300};

/// Refreshes a model at once and then again after each interval. Outlives the event loop.
class AutoRefresh {
public:
    AutoRefresh(AppModel& model, platform::Clock& clock) : m_model(model), m_clock(clock) {}

    /// Does nothing under a test host or in fixture mode, whose figures are to stay.
    void start(const LaunchContext& context);

    /// No refresh starts after this; one that runs goes on to its end.
    void stop();

private:
    QCoro::Task<> refreshAndWait();

    AppModel& m_model;
    platform::Clock& m_clock;
    std::unique_ptr<platform::Alarm> m_next;
    bool m_isStopped = false;
};

} // namespace tallyvane::core
