#pragma once

#include "model/file_descriptor.h"
#include "model/message.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <expected>
#include <filesystem>
#include <optional>
#include <system_error>

namespace tallyvane::model {

/// Why something could not be saved.
struct FileError {
    Message message;
};

/// "Could not save <path>: <reason>."; `error` is an errno value.
[[nodiscard]] FileError saveError(const std::filesystem::path& path, int error);

/// The content of a regular file of at most `maximumSize` bytes. Nothing when it is missing,
/// unreadable, larger, or not a regular file. Never blocks on a pipe.
[[nodiscard]] std::optional<QByteArray> readFile(const std::filesystem::path& path,
                                                 qsizetype maximumSize);

/// Atomically replaces the file at `path`, or the target of a symbolic link there, by one with
/// `bytes` that only the user can read. After a crash or a power failure the file is either the old
/// or the new one, never a mix; on success the new one is on the disk. Fails if the file is
/// read-only or not a regular file. A crash can leave a hidden file
/// ".tallyvane-<process>-<six characters>" beside it.
[[nodiscard]] std::expected<void, FileError> writeFile(const std::filesystem::path& path,
                                                       const QByteArray& bytes);

/// writeFile() for persistent files: creates the missing directory, and removes temporary files
/// that crashed calls left in it. Spares those of the last minute, which may be in use.
[[nodiscard]] std::expected<void, FileError> saveFile(const std::filesystem::path& path,
                                                      const QByteArray& bytes);

/// Creates the directory and its missing parents, accessible to the user alone.
std::error_code makePrivateDirectory(const std::filesystem::path& directory);

/// A lock held by tryLock(); released when the object or the process ends.
using FileLock = FileDescriptor;

/// Locks the file at `path` with flock(2), creating it if missing. Does not wait: nothing while
/// someone else holds the lock. Always succeeds on file systems without locks.
[[nodiscard]] std::expected<std::optional<FileLock>, std::error_code>
tryLock(const std::filesystem::path& path);

} // namespace tallyvane::model
