#include "platform/linux/boot_clock.h"

#include <QtCore/QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

namespace tallyvane::platform {

namespace {

class TimerDescriptor {
public:
    TimerDescriptor(clockid_t clock, std::chrono::milliseconds delay)
        : m_fd(::timerfd_create(clock, TFD_NONBLOCK | TFD_CLOEXEC)) {
        if (m_fd < 0) {
            qFatal("no timer could be made: too many open files");
        }
        // A timer set to zero would be disarmed.
        const auto positive = std::max(delay, std::chrono::milliseconds{1});
        const auto seconds = std::chrono::floor<std::chrono::seconds>(positive);
        itimerspec setting{};
        setting.it_value.tv_sec = seconds.count();
        setting.it_value.tv_nsec = std::chrono::nanoseconds{positive - seconds}.count();
        ::timerfd_settime(m_fd, 0, &setting, nullptr);
    }
    ~TimerDescriptor() { ::close(m_fd); }
    TimerDescriptor(const TimerDescriptor&) = delete;
    TimerDescriptor& operator=(const TimerDescriptor&) = delete;

    int get() const { return m_fd; }

private:
    int m_fd;
};

class BootAlarm final : public Alarm {
public:
    BootAlarm(clockid_t clock, std::chrono::milliseconds delay, std::function<void()> action)
        : m_timer(clock, delay), m_notifier(m_timer.get(), QSocketNotifier::Read) {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier,
                         [this, action = std::move(action)] {
                             m_notifier.setEnabled(false);
                             const auto call = action; // outlives this alarm if the call drops it
                             call();
                         });
    }

private:
    TimerDescriptor m_timer;
    QSocketNotifier m_notifier;
};

} // namespace

model::Timestamp BootClock::now() const {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

std::unique_ptr<Alarm> BootClock::after(std::chrono::milliseconds delay,
                                        std::function<void()> action, SuspendedTime suspended) {
    const clockid_t clock = suspended == SuspendedTime::counts ? CLOCK_BOOTTIME : CLOCK_MONOTONIC;
    return std::make_unique<BootAlarm>(clock, delay, std::move(action));
}

} // namespace tallyvane::platform
