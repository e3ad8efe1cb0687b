#include "platform/linux/termination_signals.h"

#include <atomic>
#include <cerrno>
#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tallyvane::platform {

namespace {

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP};

// Global for the signal handler. A signalfd needs none, but it needs blocked signals, which child
// processes would inherit and then ignore requests to end.
std::atomic<int> eventDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void noteSignal(int /*number*/) {
    const int savedError = errno;
    ::eventfd_write(eventDescriptor, 1);
    errno = savedError;
}

void replaceHandlers(void (*from)(int), void (*to)(int)) {
    for (const int number : handledSignals) {
        struct sigaction current{};
        ::sigaction(number, nullptr, &current);
        if (current.sa_handler == from) {
            struct sigaction wanted{};
            wanted.sa_handler = to;
            wanted.sa_flags = SA_RESTART;
            ::sigaction(number, &wanted, nullptr);
        }
    }
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> action) {
    const int descriptor = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    if (descriptor < 0) {
        return;
    }
    m_notifier.emplace(descriptor, QSocketNotifier::Read);
    QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier,
                     [descriptor, action = std::move(action)] {
                         eventfd_t count = 0;
                         ::eventfd_read(descriptor, &count);
                         action();
                     });
    eventDescriptor = descriptor;
    replaceHandlers(SIG_DFL, noteSignal);
}

TerminationSignals::~TerminationSignals() {
    if (m_notifier) {
        replaceHandlers(noteSignal, SIG_DFL);
        m_notifier->setEnabled(false);
        ::close(static_cast<int>(m_notifier->socket()));
    }
}

} // namespace tallyvane::platform
