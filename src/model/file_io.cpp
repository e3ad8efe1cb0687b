#include "model/file_io.h"

#include "model/file_descriptor.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <chrono>

namespace tallyvane::model {

namespace {

/// Puts the directory's entries on the disk, so that a rename in it survives a loss of power.
void syncDirectory(const std::filesystem::path& directory) {
    const FileDescriptor descriptor(directory, O_RDONLY | O_DIRECTORY);
    if (descriptor.get() >= 0) {
        ::fsync(descriptor.get());
    }
}

FileError saveError(const std::filesystem::path& path, const QString& reason) {
    return {QStringLiteral("Could not save %1: %2.").arg(QFile(path).fileName(), reason)};
}

void removeUnfinishedWrites(const std::filesystem::path& path) {
    namespace fs = std::filesystem;
    // As QSaveFile names them: six more characters.
    const std::string start = path.filename().string() + '.';
    const auto lastMinute = fs::file_time_type::clock::now() - std::chrono::minutes{1};
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(path.parent_path(), error)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(start) && name.size() == start.size() + 6 &&
            entry.symlink_status(error).type() == fs::file_type::regular &&
            entry.last_write_time(error) < lastMinute) {
            fs::remove(entry.path(), error);
        }
    }
}

} // namespace

std::optional<QByteArray> readFile(const std::filesystem::path& path, qsizetype maximumSize) {
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
    QByteArray bytes = file.read(maximumSize + 1);
    if (file.error() != QFile::NoError || bytes.size() > maximumSize) {
        return std::nullopt;
    }
    return bytes;
}

std::expected<void, FileError> writeFile(const std::filesystem::path& path,
                                         const QByteArray& bytes) {
    QSaveFile file(QFile(path).fileName());
    // In Qt 6.4 commit() neither syncs the file nor minds that its last bytes found no room.
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                           file.write(bytes) == bytes.size() && file.flush() &&
                           ::fsync(file.handle()) == 0 && file.commit();
    if (!isWritten) {
        return std::unexpected(saveError(path, file.errorString()));
    }
    syncDirectory(path.parent_path());
    return {};
}

std::expected<void, FileError> saveFile(const std::filesystem::path& path,
                                        const QByteArray& bytes) {
    if (const std::error_code error = makePrivateDirectory(path.parent_path())) {
        return std::unexpected(saveError(path, qt_error_string(error.value())));
    }
    removeUnfinishedWrites(path);
    return writeFile(path, bytes);
}

void makePrivateFile(const std::filesystem::path& path) {
    const FileDescriptor made(path, O_CREAT | O_WRONLY | O_NONBLOCK);
}

std::error_code makePrivateDirectory(const std::filesystem::path& directory) {
    std::error_code ignored;
    if (directory.empty() || std::filesystem::is_directory(directory, ignored)) {
        return {};
    }
    if (const std::error_code error = makePrivateDirectory(directory.parent_path())) {
        return error;
    }
    // Another process may have made it meanwhile; what else is in its place is told by who uses it.
    const bool isThere = ::mkdir(directory.c_str(), S_IRWXU) == 0 || errno == EEXIST;
    return isThere ? std::error_code() : std::error_code(errno, std::system_category());
}

} // namespace tallyvane::model
