#include "platform/linux/boot_clock.h"

#include "model/file_descriptor.h"

#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <optional>
#include <sys/timerfd.h>

namespace tallyvane::platform {

namespace {

/// A timer that becomes readable after `delay`, unless the system has no descriptor left.
model::FileDescriptor startTimer(clockid_t clock, std::chrono::milliseconds delay) {
    model::FileDescriptor timer(::timerfd_create(clock, TFD_NONBLOCK | TFD_CLOEXEC));
    // Zero would disarm it.
    const auto positive = std::max(delay, std::chrono::milliseconds{1});
    const auto seconds = std::chrono::floor<std::chrono::seconds>(positive);
    itimerspec setting{};
    setting.it_value.tv_sec = seconds.count();
    setting.it_value.tv_nsec = std::chrono::nanoseconds{positive - seconds}.count();
    ::timerfd_settime(timer.get(), 0, &setting, nullptr);
    return timer;
}

class BootAlarm final : public Alarm {
public:
    BootAlarm(clockid_t clock, std::chrono::milliseconds delay, std::function<void()> action)
        : m_timer(startTimer(clock, delay)), m_action(std::move(action)) {
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
        const auto action = m_action; // may destroy this alarm
        action();
    }

    model::FileDescriptor m_timer;
    std::optional<QSocketNotifier> m_notifier;
    std::function<void()> m_action;
    QObject m_scope; ///< cancels the QTimer that stands in when there is no descriptor
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
