#pragma once

#include <QtCore/QSocketNotifier>

#include <functional>
#include <optional>

namespace tallyvane::platform {

/// During its lifetime SIGTERM, SIGINT and SIGHUP call `action` from the event loop instead of
/// ending the program. A signal that arrives before the loop runs is not lost; several may result
/// in one call. Signals ignored at the start (nohup) stay ignored. If the system has no descriptor
/// left, the signals keep ending the program. At most one object at a time.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> action);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::optional<QSocketNotifier> m_notifier;
};

} // namespace tallyvane::platform
