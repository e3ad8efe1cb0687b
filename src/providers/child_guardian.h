#pragma once

#include <array>
#include <chrono>

class QProcess;

namespace tallyvane::providers {

/// Ends a child process and everything it started, even if this program crashes.
///
/// A guarded QProcess leads its own session and process group, with a guardian beside it: a fork of
/// this program that only waits. When this object is destroyed or this program ends, for whatever
/// reason, the guardian sends SIGTERM to the group and to processes in other groups of the session,
/// kills the survivors after a grace period, and exits. It misses processes that have started their
/// own session (setsid) and, where /proc hides the user's processes, those that have left the
/// group. Linux only.
class ChildGuardian {
public:
    ChildGuardian();
    ~ChildGuardian();
    ChildGuardian(const ChildGuardian&) = delete;
    ChildGuardian& operator=(const ChildGuardian&) = delete;

    /// False if the system was out of descriptors; `errno` is then that of the constructor.
    [[nodiscard]] bool isReady() const { return m_lifeline[0] >= 0; }

    /// Guards `process`, which must not have been started.
    void guard(QProcess& process, std::chrono::milliseconds grace) const;

private:
    /// A pipe that carries no data. Only this object holds the write end, so the guardian sees end
    /// of file when this object is gone.
    std::array<int, 2> m_lifeline{-1, -1};
};

} // namespace tallyvane::providers
