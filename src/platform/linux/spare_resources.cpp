#include "platform/linux/spare_resources.h"

#include "model/file_descriptor.h"
#include "model/file_io.h"

#include <QtCore/QScopeGuard>

#include <cerrno>
#include <latch>
#include <list>
#include <optional>
#include <sys/resource.h>
#include <system_error>
#include <thread>

namespace tallyvane::platform {

namespace {

namespace fs = std::filesystem;

QByteArray systemFile(const fs::path& path) {
    constexpr qsizetype maximumSize = 16 * 1024;
    return model::readFile(path, maximumSize).value_or(QByteArray()).trimmed();
}

std::optional<qint64> numberIn(const QByteArray& text) {
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

bool hasRoomInGroup(const fs::path& group, int threads) {
    const QByteArray limit = systemFile(group / "pids.max");
    if (limit.isEmpty() || limit == "max") { // the topmost group has no limit
        return true;
    }
    const auto most = numberIn(limit);
    const auto current = numberIn(systemFile(group / "pids.current"));
    return most && current && *current + threads <= *most;
}

/// Whether `group`, a path below `top`, and those it is in have room.
bool hasRoomInGroups(const fs::path& top, const QByteArray& group, int threads) {
    fs::path folder = top;
    if (!hasRoomInGroup(folder, threads)) {
        return false;
    }
    for (const QByteArray& name : group.split('/')) {
        std::error_code error;
        folder /= name.toStdString();
        // Another namespace's groups cannot be seen.
        if (name == ".." || !fs::is_directory(folder, error) || !hasRoomInGroup(folder, threads)) {
            return false;
        }
    }
    return true;
}

/// Whether the limits of this process have room. No user has more threads than all users together.
bool hasRoomInProcess(const fs::path& root, int threads) {
    rlimit user{};
    rlimit memory{};
    ::getrlimit(RLIMIT_NPROC, &user);
    ::getrlimit(RLIMIT_AS, &memory);
    // "0.41 0.30 0.28 2/345 6789": the second of the pair is the number of all threads.
    const QByteArray pair = systemFile(root / "proc/loadavg").split(' ').value(3);
    const auto all = numberIn(pair.mid(pair.indexOf('/') + 1));
    return all && memory.rlim_cur == RLIM_INFINITY &&
           user.rlim_cur >= static_cast<rlim_t>(*all + threads);
}

} // namespace

bool hasAmpleRoom(int threads, const fs::path& root) {
    if (!hasRoomInProcess(root, threads)) {
        return false;
    }
    bool isGrouped = false;
    for (const QByteArray& line : systemFile(root / "proc/self/cgroup").split('\n')) {
        // "0::/user.slice", or of version 1 "8:pids:/user.slice".
        const qsizetype first = line.indexOf(':');
        const qsizetype second = line.indexOf(':', first + 1);
        const QByteArray controllers = line.mid(first + 1, second - first - 1);
        const bool isUnified = second >= 0 && controllers.isEmpty();
        if (!isUnified && !controllers.split(',').contains("pids")) {
            continue;
        }
        const fs::path groups = root / "sys/fs/cgroup";
        if (!hasRoomInGroups(isUnified ? groups : groups / "pids", line.mid(second + 1), threads)) {
            return false;
        }
        isGrouped = true;
    }
    return isGrouped;
}

std::expected<void, QString> trySpare(SpareResources wanted) {
    std::list<model::FileDescriptor> descriptors;
    descriptors.emplace_back("/", O_PATH);
    while (descriptors.back().get() >= 0 && std::ssize(descriptors) < wanted.descriptors) {
        descriptors.emplace_back(::fcntl(descriptors.back().get(), F_DUPFD_CLOEXEC, 0));
    }
    if (descriptors.back().get() < 0) {
        return std::unexpected(qt_error_string(errno));
    }
    std::latch end(1);
    std::list<std::jthread> threads;
    const auto release = qScopeGuard([&end] { end.count_down(); });
    try {
        const int doubtful = hasAmpleRoom(wanted.threads) ? 0 : wanted.threads;
        for (int i = 0; i < doubtful; ++i) {
            threads.emplace_back([&end] { end.wait(); });
        }
    } catch (const std::system_error& error) {
        return std::unexpected(qt_error_string(error.code().value()));
    }
    return {};
}

} // namespace tallyvane::platform
