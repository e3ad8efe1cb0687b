#include "model/file_io.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <sys/file.h>

namespace tallyvane::model {

namespace {

namespace fs = std::filesystem;

/// Parts of the names of temporary files; no other program uses such names.
constexpr std::string_view temporaryStart = ".tallyvane-";
constexpr std::string_view temporaryEnd = "-XXXXXX";

/// Flushes the directory to the disk, so that a rename in it survives a power failure.
void syncDirectory(const fs::path& directory) {
    const FileDescriptor descriptor(directory, O_RDONLY | O_DIRECTORY);
    if (descriptor.get() >= 0) {
        ::fsync(descriptor.get());
    }
}

bool isTemporary(std::string_view name) {
    if (!name.starts_with(temporaryStart)) {
        return false;
    }
    name.remove_prefix(temporaryStart.size());
    const std::size_t process = std::min(name.find_first_not_of("0123456789"), name.size());
    return process > 0 && name.size() == process + temporaryEnd.size() && name[process] == '-';
}

void removeUnfinishedWrites(const fs::path& directory) {
    const auto lastMinute = fs::file_time_type::clock::now() - std::chrono::minutes{1};
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory, error)) {
        if (isTemporary(entry.path().filename().native()) &&
            entry.symlink_status(error).type() == fs::file_type::regular &&
            entry.last_write_time(error) < lastMinute) {
            fs::remove(entry.path(), error);
        }
    }
}

/// Resolves the symbolic links at `path`, up to the kernel's limit.
fs::path withoutLinks(fs::path path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int link = 0; link < mostLinks && fs::is_symlink(path, error); ++link) {
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return path;
}

/// Writes the bytes and flushes them to the disk. Returns an errno value, 0 on success.
int writeAll(int descriptor, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t count =
            ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        bytes = bytes.sliced(std::max<ssize_t>(count, 0));
    }
    return ::fsync(descriptor) == 0 ? 0 : errno;
}

/// Returns an errno value, 0 on success.
int replaceFile(const fs::path& path, const QByteArray& bytes) {
    struct stat status{};
    if (::stat(path.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode)) {
            return S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP;
        }
        if (::access(path.c_str(), W_OK) != 0) { // rename() would not mind
            return errno;
        }
    }
    std::string name = path.parent_path() / temporaryStart;
    name.append(std::to_string(::getpid())).append(temporaryEnd);
    const FileDescriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (file.get() < 0) {
        return errno;
    }
    int error = writeAll(file.get(), bytes);
    if (error == 0 && ::rename(name.c_str(), path.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        ::unlink(name.c_str());
    }
    return error;
}

} // namespace

FileError saveError(const fs::path& path, int error) {
    return {Message(QT_TRANSLATE_NOOP("Message", "Could not save %1: %2."),
                    {QFile(path).fileName(), qt_error_string(error)})};
}

std::optional<QByteArray> readFile(const fs::path& path, qsizetype maximumSize) {
    const FileDescriptor descriptor(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    struct stat status{};
    if (descriptor.get() < 0 || ::fstat(descriptor.get(), &status) != 0 ||
        !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    QFile file;
    if (!file.open(descriptor.get(), QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    constexpr qsizetype pieceSize = 64 * 1024; // read() allocates what it is asked for
    QByteArray bytes;
    for (QByteArray piece; !(piece = file.read(pieceSize)).isEmpty();) {
        bytes += piece;
        if (bytes.size() > maximumSize) {
            return std::nullopt;
        }
    }
    return file.error() == QFile::NoError ? std::optional(bytes) : std::nullopt;
}

std::expected<void, FileError> writeFile(const fs::path& path, const QByteArray& bytes) {
    const fs::path target = withoutLinks(path);
    if (const int error = replaceFile(target, bytes); error != 0) {
        return std::unexpected(saveError(path, error));
    }
    syncDirectory(target.parent_path());
    return {};
}

std::expected<void, FileError> saveFile(const fs::path& path, const QByteArray& bytes) {
    const fs::path directory = withoutLinks(path).parent_path();
    if (const std::error_code error = makePrivateDirectory(directory)) {
        return std::unexpected(saveError(path, error.value()));
    }
    removeUnfinishedWrites(directory);
    return writeFile(path, bytes);
}

std::error_code makePrivateDirectory(const fs::path& directory) {
    std::error_code ignored;
    if (directory.empty() || fs::is_directory(directory, ignored)) {
        return {};
    }
    if (const std::error_code error = makePrivateDirectory(directory.parent_path())) {
        return error;
    }
    // With EEXIST another process was faster, or the caller will fail on what is in its place.
    const bool exists = ::mkdir(directory.c_str(), S_IRWXU) == 0 || errno == EEXIST;
    return exists ? std::error_code() : std::error_code(errno, std::system_category());
}

std::expected<std::optional<FileLock>, std::error_code> tryLock(const fs::path& path) {
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
    // The previous holder may have replaced the file, so that others already lock the new one.
    struct stat current{};
    if (::stat(path.c_str(), &current) != 0 || current.st_dev != locked.st_dev ||
        current.st_ino != locked.st_ino) {
        return std::nullopt;
    }
    return file;
}

} // namespace tallyvane::model
