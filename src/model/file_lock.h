#pragma once

#include "model/file_descriptor.h"

#include <expected>
#include <optional>
#include <system_error>

namespace tallyvane::model {

/// A file that one holder at a time has locked, by flock(2): the kernel frees the lock with the
/// object or with the process, however that ends.
class FileLock {
public:
    /// Locks the file at `path`, which is made when it is missing, without waiting. Nothing while
    /// another has it. The error is the system's. Where the file system knows no locks, everybody
    /// gets one.
    [[nodiscard]] static std::expected<std::optional<FileLock>, std::error_code>
    tryLock(const std::filesystem::path& path);

private:
    explicit FileLock(FileDescriptor file) : m_file(std::move(file)) {}

    FileDescriptor m_file;
};

} // namespace tallyvane::model
