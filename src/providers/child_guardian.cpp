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
constexpr int killRounds = 50; ///< a process may fork while it is being killed

/// The layout that getdents64(2) writes.
struct DirectoryEntry {
    std::uint64_t inode;
    std::int64_t offset;
    std::uint16_t length;
    std::uint8_t type;
    char name[1]; ///< NUL-terminated
};

/// The decimal number at the start of the text, or 0 if there is none.
pid_t numberAt(const char* text) {
    pid_t number = 0;
    while (*text >= '0' && *text <= '9') {
        number = number * 10 + (*text++ - '0');
    }
    return number;
}

/// Whether the process is in the group's session but not in the group. /proc/<id>/stat reads
/// "id (name) state parent group session …", where the name may contain anything.
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

/// Sends `signal` (0: none) to processes that have moved to another group of the same session, as a
/// shell's jobs do. Returns whether there are any.
bool signalStrays(pid_t group, int signal) {
    // Static because the stack is tiny (see startGuardian).
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

/// The guardian's main function. Makes async-signal-safe calls only, and so reads the time itself:
/// no event loop and no Clock exist in this process.
[[noreturn]] void keepWatch(int lifeline, pid_t group, milliseconds grace) {
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
    // Leave the group so as not to signal itself, but stay in the session: while a process is in
    // it, the kernel does not reuse its ID, which is also the group's.
    ::setpgid(0, 0);
    // Inherited descriptors would keep open the child's pipes and the pipe through which QProcess
    // learns that the program has started.
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

/// Exits before the program starts, which must not run unguarded; QProcess reports the message.
[[noreturn]] void refuseToStart() {
    constexpr std::string_view reason = "The system has no more processes or open files to give.\n";
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, reason.data(), reason.size());
    ::_exit(1);
}

/// Runs in QProcess's child before exec. The child shares this program's memory, has a stack of
/// only 4 kB (seen in Qt 6.4) and blocks this program: hence only a few system calls here.
void startGuardian(int lifeline, milliseconds grace) {
    const pid_t group = ::setsid();
    std::array<int, 2> untilReady{};
    if (::pipe2(untilReady.data(), O_CLOEXEC) != 0) {
        refuseToStart();
    }
    // A fork that sends no signal on exit, so that the program does not see an unexpected child in
    // its wait calls.
    const long guardian = ::syscall(SYS_clone, 0, 0, 0, 0, 0);
    if (guardian == 0) {
        keepWatch(lifeline, group, grace);
    }
    if (guardian < 0) {
        refuseToStart();
    }
    // Wait until the guardian has left the group and closed what it inherited.
    ::close(untilReady[1]);
    char nothing = 0;
    while (::read(untilReady[0], &nothing, 1) < 0 && errno == EINTR) {
    }
    ::close(untilReady[0]);
}

} // namespace

ChildGuardian::ChildGuardian() {
    // On failure both ends remain -1.
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
