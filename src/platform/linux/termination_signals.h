#pragma once

#include <QtCore/QSocketNotifier>

#include <functional>
#include <optional>

namespace tallyvane::platform {

/// While it lives, SIGTERM, SIGINT and SIGHUP call `action` from the event loop instead of ending
/// the program; one that came before the loop runs is not lost, several may make one call. A signal
/// that the program was started to ignore (nohup) stays ignored. When the system has no descriptor
/// for it, the signals end the program as ever. One object at a time.
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
