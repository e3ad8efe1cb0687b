#include "model/file_lock.h"

#include <cerrno>
#include <sys/file.h>

namespace tallyvane::model {

std::expected<std::optional<FileLock>, std::error_code>
FileLock::tryLock(const std::filesystem::path& path) {
    FileDescriptor file(path, O_RDONLY | O_CREAT | O_NONBLOCK | O_NOCTTY);
    struct stat locked{};
    if (file.get() < 0 || ::fstat(file.get(), &locked) != 0) {
        return std::unexpected(std::error_code(errno, std::system_category()));
    }
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            return std::nullopt;
        }
        if (errno != ENOLCK && errno != EOPNOTSUPP) {
            return std::unexpected(std::error_code(errno, std::system_category()));
        }
    }
    // The holder before may have put another file in its place, which others lock by now.
    struct stat there{};
    if (::stat(path.c_str(), &there) != 0 || there.st_dev != locked.st_dev ||
        there.st_ino != locked.st_ino) {
        return std::nullopt;
    }
    return FileLock(std::move(file));
}

} // namespace tallyvane::model
