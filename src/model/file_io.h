#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <expected>
#include <filesystem>
#include <optional>
#include <system_error>

namespace tallyvane::model {

struct FileError {
    QString message; ///< for the user: which file, and the system's reason
};

/// That the file could not be saved, and why: an error number of the system.
[[nodiscard]] FileError saveError(const std::filesystem::path& path, int error);

/// The whole of a regular file of at most `maximumSize` bytes; nothing when there is none, it
/// cannot be read, is larger, or is anything but a regular file. Never blocks on a pipe.
[[nodiscard]] std::optional<QByteArray> readFile(const std::filesystem::path& path,
                                                 qsizetype maximumSize);

/// Replaces the file at `path`, or the one that a symbolic link there leads to, by one that holds
/// `bytes` and that only the user can read. At every instant, a crash or a loss of power included,
/// it is the old or the new file whole; when this returns a value the new one is on the disk. Fails
/// on what is no regular file or may not be written. A crash can leave a hidden file
/// ".tallyvane-<process>-<six characters>" beside it.
[[nodiscard]] std::expected<void, FileError> writeFile(const std::filesystem::path& path,
                                                       const QByteArray& bytes);

/// writeFile() for a file that is to stay: makes its directory when that is missing, and removes
/// what earlier calls that never ended left beside it, except files of the last minute, which
/// another process may be writing.
[[nodiscard]] std::expected<void, FileError> saveFile(const std::filesystem::path& path,
                                                      const QByteArray& bytes);

/// Makes the directory and its missing parents, those that it makes open to the user alone. The
/// error is the system's.
std::error_code makePrivateDirectory(const std::filesystem::path& directory);

} // namespace tallyvane::model
