#include "providers/child_guardian.h"

#include <QtCore/QProcess>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tallyvane::providers {

namespace {

using namespace std::chrono;

constexpr milliseconds groupPollInterval{20};

/// The whole life of the guardian: nothing but async-signal-safe calls.
[[noreturn]] void keepWatch(int lifeline, pid_t group, milliseconds grace) {
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
    // Outside the group, so as not to signal itself, but inside the session, whose number is the
    // group's: while the guardian lives, the system gives that number to no one else.
    ::setpgid(0, 0);
    // An inherited descriptor would hold the child's pipes open, and the pipe by which QProcess
    // learns that the program has been started.
    ::dup2(lifeline, STDIN_FILENO);
    ::closefrom(STDIN_FILENO + 1);

    pollfd end{.fd = STDIN_FILENO, .events = 0, .revents = 0};
    while (::poll(&end, 1, -1) < 1) {
    }
    ::kill(-group, SIGTERM);
    const auto deadline = steady_clock::now() + grace;
    while (::kill(-group, 0) == 0 && steady_clock::now() < deadline) {
        ::poll(nullptr, 0, groupPollInterval.count());
    }
    ::kill(-group, SIGKILL);
    ::_exit(0);
}

/// Runs in QProcess's child before it becomes the program. Until then the child borrows the memory
/// of this program and a stack of 4 kB (seen in Qt 6.4), and this program stands still: hence
/// nothing here but a few system calls.
void startGuardian(int lifeline, milliseconds grace) {
    const pid_t group = ::setsid();
    std::array<int, 2> untilReady{};
    if (::pipe2(untilReady.data(), O_CLOEXEC) != 0) {
        ::_exit(1); // nothing runs unguarded; QProcess sees a program that ends at once
    }
    // A fork that signals nobody when it ends, so that the program, whose child it is, does not
    // meet it in its wait calls.
    const long guardian = ::syscall(SYS_clone, 0, 0, 0, 0, 0);
    if (guardian == 0) {
        keepWatch(lifeline, group, grace);
    }
    if (guardian < 0) {
        ::_exit(1);
    }
    // Until the guardian has left the group and closed what it inherited.
    ::close(untilReady[1]);
    char nothing = 0;
    while (::read(untilReady[0], &nothing, 1) < 0 && errno == EINTR) {
    }
    ::close(untilReady[0]);
}

} // namespace

ChildGuardian::ChildGuardian() {
    // On failure both ends keep their -1.
    [[maybe_unused]] const int result = ::pipe2(m_lifeline.data(), O_CLOEXEC);
}

ChildGuardian::~ChildGuardian() {
    if (isReady()) {
        ::close(m_lifeline[0]);
        ::close(m_lifeline[1]);
    }
}

void ChildGuardian::guard(QProcess& process, milliseconds grace) const {
    process.setChildProcessModifier(
        [lifeline = m_lifeline[0], grace] { startGuardian(lifeline, grace); });
}

} // namespace tallyvane::providers
