#pragma once

#include "platform/clock.h"

#include <list>

namespace tallyvane::tests {

/// A clock that moves only when a test moves it.
class ManualClock final : public platform::Clock {
public:
    explicit ManualClock(model::Timestamp start) : m_now(start) {}

    [[nodiscard]] model::Timestamp now() const override { return m_now; }

    [[nodiscard]] std::unique_ptr<platform::Alarm>
    after(std::chrono::milliseconds delay, std::function<void()> action,
          platform::SuspendedTime suspended = platform::SuspendedTime::counts) override {
        return std::make_unique<ManualAlarm>(*this, m_now + delay, std::move(action), suspended);
    }

    /// Suspends the machine for `duration`; on waking up rings what is due by then.
    void suspend(std::chrono::milliseconds duration) {
        for (ManualAlarm* alarm : m_pending) {
            if (alarm->suspended == platform::SuspendedTime::doesNotCount) {
                alarm->due += duration;
            }
        }
        m_now += duration;
        advance({});
    }

    /// Moves on by `duration`, ringing each alarm in it at its own time.
    void advance(std::chrono::milliseconds duration) {
        const model::Timestamp end = m_now + duration;
        for (;;) {
            const auto next = std::ranges::min_element(m_pending, {}, &ManualAlarm::due);
            if (next == m_pending.end() || (*next)->due > end) {
                break;
            }
            m_now = std::max(m_now, (*next)->due);
            const auto action = (*next)->action;
            m_pending.erase(next);
            action();
        }
        m_now = end;
    }

    /// How many alarms are set.
    [[nodiscard]] std::size_t pendingAlarms() const { return m_pending.size(); }

private:
    struct ManualAlarm final : platform::Alarm {
        ManualAlarm(ManualClock& owner, model::Timestamp at, std::function<void()> call,
                    platform::SuspendedTime suspendedTime)
            : clock(owner), due(at), action(std::move(call)), suspended(suspendedTime) {
            clock.m_pending.push_back(this);
        }
        ~ManualAlarm() override { clock.m_pending.remove(this); }

        ManualClock& clock;
        model::Timestamp due;
        std::function<void()> action;
        platform::SuspendedTime suspended;
    };

    model::Timestamp m_now;
    std::list<ManualAlarm*> m_pending;
};

} // namespace tallyvane::tests
