#include "providers/child_guardian.h"

#include <QtCore/QProcess>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tallyvane::providers {

namespace {

using namespace std::chrono;

constexpr milliseconds groupPollInterval{20};

[[noreturn]] void keepWatch(int lifeline, pid_t group, milliseconds grace) {
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
/// of this program and a stack of 4 kB (seen in Qt 6.4), and this program stands still: hence few
/// locals, none but async-signal-safe calls, and _Fork instead of fork, which runs handlers.
void startGuardian(int lifeline, milliseconds grace) {
    sigset_t all;
    sigset_t inherited;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, &inherited); // the guardian keeps them blocked
    ::signal(SIGCHLD, SIG_DFL);                   // were it ignored, waitpid would tell nothing
    const pid_t group = ::setsid();

    // By way of a go-between, so that the program finds no child that it has not started.
    const pid_t goBetween = ::_Fork();
    if (goBetween == 0) {
        const pid_t guardian = ::_Fork();
        if (guardian == 0) {
            keepWatch(lifeline, group, grace);
        }
        ::_exit(guardian > 0 ? 0 : 1);
    }
    int status = 1;
    ::waitpid(goBetween, &status, 0);
    if (status != 0) {
        ::_exit(1); // nothing runs unguarded; QProcess sees a program that ends at once
    }
    ::sigprocmask(SIG_SETMASK, &inherited, nullptr);
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
