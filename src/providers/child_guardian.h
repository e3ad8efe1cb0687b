#pragma once

#include <array>
#include <chrono>

class QProcess;

namespace tallyvane::providers {

/// Sees to it that a child process, and what it starts, ends with its use.
///
/// A guarded QProcess leads a session and a process group of its own, with a guardian beside it: a
/// fork of this program that only waits. When this object is destroyed, or when this program ends
/// in whatever way, the guardian asks the group, and what has left it for another group of the
/// session, to terminate, kills what is left of them after a grace, and ends. It does not find what
/// has made a session of its own, as daemons do (setsid), nor, where /proc does not show the user's
/// processes, what has left the group. Linux only.
class ChildGuardian {
public:
    ChildGuardian();
    ~ChildGuardian();
    ChildGuardian(const ChildGuardian&) = delete;
    ChildGuardian& operator=(const ChildGuardian&) = delete;

    /// False when the system had no descriptors left; `errno` is then that of the constructor.
    [[nodiscard]] bool isReady() const { return m_lifeline[0] >= 0; }

    /// Puts `process`, which has not been started, under guard.
    void guard(QProcess& process, std::chrono::milliseconds grace) const;

private:
    /// A pipe that carries nothing: no one but this object holds its write end, so its end of file
    /// tells the guardian.
    std::array<int, 2> m_lifeline{-1, -1};
};

} // namespace tallyvane::providers
