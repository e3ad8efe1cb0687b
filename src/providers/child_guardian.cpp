#include "providers/child_guardian.h"

#include <QtCore/QProcess>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>

namespace tallyvane::providers {

namespace {

using namespace std::chrono;

constexpr milliseconds groupPollInterval{20};
constexpr int killRounds = 50; ///< what is being killed may still fork

/// As getdents64(2) writes it.
struct DirectoryEntry {
    std::uint64_t inode;
    std::int64_t offset;
    std::uint16_t length;
    std::uint8_t type;
    char name[1]; ///< ends with a NUL
};

/// The decimal number that a text begins with; 0 if there is none.
pid_t numberAt(const char* text) {
    pid_t number = 0;
    while (*text >= '0' && *text <= '9') {
        number = number * 10 + (*text++ - '0');
    }
    return number;
}

/// Whether the process is in the session of the group, but not in the group. In /proc/<id>/stat
/// stands "id (name) state parent group session …", where the name may hold anything.
bool hasLeft(pid_t group, int procDirectory, const char* id) {
    std::array<char, 32> path{};
    std::size_t length = 0;
    for (const char* part : {id, "/stat"}) {
        while (*part != 0 && length + 1 < path.size()) {
            path[length++] = *part++;
        }
    }
    const int file = ::openat(procDirectory, path.data(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    std::array<char, 256> line{};
    const ssize_t size = ::read(file, line.data(), line.size() - 1);
    ::close(file);
    const char* field = size > 0 ? std::strrchr(line.data(), ')') : nullptr;
    if (field == nullptr || field[1] != ' ' || field[2] == 'Z' || field[2] == 'X') {
        return false;
    }
    const auto skip = [&field](int fields) {
        for (; fields > 0 && field != nullptr; --fields) {
            field = std::strchr(field + 1, ' ');
        }
        return field != nullptr ? numberAt(field + 1) : 0;
    };
    const bool isInGroup = skip(3) == group;
    return skip(1) == group && !isInGroup;
}

/// Sends `signal` (0: none) to the processes that have left the group for another one of its
/// session, as a shell does with its jobs; whether there are any.
bool signalStrays(pid_t group, int signal) {
    // Not on the stack, which is as small as the child's is (see startGuardian).
    alignas(DirectoryEntry) static std::array<char, 4096> entries;
    bool isAnyLeft = false;
    const int directory = ::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (;;) {
        const long size = ::syscall(SYS_getdents64, directory, entries.data(), entries.size());
        if (size <= 0) {
            break;
        }
        for (long at = 0; at < size;) {
            const auto* entry = reinterpret_cast<const DirectoryEntry*>(&entries[at]);
            at += entry->length;
            const pid_t id = numberAt(entry->name);
            if (id > 1 && id != ::getpid() && hasLeft(group, directory, entry->name)) {
                isAnyLeft = true;
                ::kill(id, signal);
            }
        }
    }
    ::close(directory);
    return isAnyLeft;
}

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
    signalStrays(group, SIGTERM);
    const auto deadline = steady_clock::now() + grace;
    while ((::kill(-group, 0) == 0 || signalStrays(group, 0)) && steady_clock::now() < deadline) {
        ::poll(nullptr, 0, groupPollInterval.count());
    }
    ::kill(-group, SIGKILL);
    for (int round = 0; round < killRounds && signalStrays(group, SIGKILL); ++round) {
        ::poll(nullptr, 0, 1);
    }
    ::_exit(0);
}

/// Nothing runs unguarded. QProcess sees a program that says so and ends at once.
[[noreturn]] void refuseToStart() {
    constexpr std::string_view reason = "The system has no more processes or open files to give.\n";
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, reason.data(), reason.size());
    ::_exit(1);
}

/// Runs in QProcess's child before it becomes the program. Until then the child borrows the memory
/// of this program and a stack of 4 kB (seen in Qt 6.4), and this program stands still: hence
/// nothing here but a few system calls.
void startGuardian(int lifeline, milliseconds grace) {
    const pid_t group = ::setsid();
    std::array<int, 2> untilReady{};
    if (::pipe2(untilReady.data(), O_CLOEXEC) != 0) {
        refuseToStart();
    }
    // A fork that signals nobody when it ends, so that the program, whose child it is, does not
    // meet it in its wait calls.
    const long guardian = ::syscall(SYS_clone, 0, 0, 0, 0, 0);
    if (guardian == 0) {
        keepWatch(lifeline, group, grace);
    }
    if (guardian < 0) {
        refuseToStart();
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
