#include "platform/linux/boot_clock.h"

#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <optional>
#include <sys/timerfd.h>
#include <unistd.h>

namespace tallyvane::platform {

namespace {

class TimerDescriptor {
public:
    TimerDescriptor(clockid_t clock, std::chrono::milliseconds delay)
        : m_fd(::timerfd_create(clock, TFD_NONBLOCK | TFD_CLOEXEC)) {
        if (m_fd < 0) {
            return;
        }
        // A timer set to zero would be disarmed.
        const auto positive = std::max(delay, std::chrono::milliseconds{1});
        const auto seconds = std::chrono::floor<std::chrono::seconds>(positive);
        itimerspec setting{};
        setting.it_value.tv_sec = seconds.count();
        setting.it_value.tv_nsec = std::chrono::nanoseconds{positive - seconds}.count();
        ::timerfd_settime(m_fd, 0, &setting, nullptr);
    }
    ~TimerDescriptor() {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }
    TimerDescriptor(const TimerDescriptor&) = delete;
    TimerDescriptor& operator=(const TimerDescriptor&) = delete;

    int get() const { return m_fd; }

private:
    int m_fd;
};

class BootAlarm final : public Alarm {
public:
    BootAlarm(clockid_t clock, std::chrono::milliseconds delay, std::function<void()> action)
        : m_timer(clock, delay), m_action(std::move(action)) {
        if (m_timer.get() < 0) {
            QTimer::singleShot(delay, &m_scope, [this] { ring(); });
            return;
        }
        m_notifier.emplace(m_timer.get(), QSocketNotifier::Read);
        QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier, [this] {
            m_notifier->setEnabled(false);
            ring();
        });
    }

private:
    void ring() {
        const auto call = m_action; // outlives this alarm if the call drops it
        call();
    }

    TimerDescriptor m_timer;
    std::optional<QSocketNotifier> m_notifier;
    std::function<void()> m_action;
    QObject m_scope; ///< of the timer that serves where there is no descriptor to be had
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
