#include "model/defaults_store.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QThread>

#include <cerrno>

namespace tallyvane::model {

namespace {

using namespace std::chrono_literals;

constexpr qsizetype maximumSize = 16 * 1024 * 1024;

bool isPresent(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

/// Whether files can be created in the directory, or if it does not exist yet, the directory
/// itself.
bool isWritableDirectory(std::filesystem::path directory) {
    while (!isPresent(directory) && directory.has_relative_path()) {
        directory = directory.parent_path();
    }
    return ::access(directory.c_str(), W_OK) == 0;
}

/// Waits while another process replaces the file.
std::expected<FileLock, std::error_code> lock(const std::filesystem::path& path) {
    const QDeadlineTimer deadline(250ms);
    for (;;) {
        auto tried = tryLock(path);
        if (!tried) {
            return std::unexpected(tried.error());
        }
        if (std::optional<FileLock> lock = *std::move(tried)) {
            return *std::move(lock);
        }
        if (deadline.hasExpired()) {
            return std::unexpected(std::error_code(EBUSY, std::system_category()));
        }
        QThread::msleep(1);
    }
}

} // namespace

std::optional<DefaultsStore> DefaultsStore::open(const std::filesystem::path& path) {
    // Replacing the file takes write access to its directory too.
    const bool isWritable = (!isPresent(path) || ::access(path.c_str(), W_OK) == 0) &&
                            isWritableDirectory(path.parent_path());
    DefaultsStore store(path);
    return isWritable && store.read() ? std::optional(std::move(store)) : std::nullopt;
}

DefaultsStore DefaultsStore::openFirst(const std::filesystem::path& preferred,
                                       const std::filesystem::path& otherwise) {
    std::optional<DefaultsStore> store = open(preferred);
    return store ? std::move(*store) : DefaultsStore(otherwise);
}

QByteArray DefaultsStore::data(const QString& key) const {
    return decodedIniBytes(encodedValue(key)).value_or(QByteArray());
}

QString DefaultsStore::text(const QString& key) const {
    return decodedIniText(encodedValue(key)).value_or(QString());
}

std::int64_t DefaultsStore::integer(const QString& key) const {
    return text(key).toLongLong();
}

bool DefaultsStore::flag(const QString& key) const {
    return text(key) == u"true";
}

std::expected<void, FileError> DefaultsStore::setData(const QString& key, const QByteArray& value) {
    return write({{key, encodedIniBytes(value)}});
}

std::expected<void, FileError> DefaultsStore::setText(const QString& key, const QString& value) {
    return write({{key, encodedIniText(value)}});
}

std::expected<void, FileError> DefaultsStore::setFlag(const QString& key, bool value) {
    return write({{key, value ? "true" : "false"}});
}

std::expected<void, FileError>
DefaultsStore::setIntegers(const std::map<QString, std::int64_t>& values) {
    std::map<QString, QByteArray> encoded;
    for (const auto& [key, value] : values) {
        encoded[key] = QByteArray::number(qint64{value});
    }
    return write(encoded);
}

std::optional<IniText> DefaultsStore::read() const {
    if (!isPresent(m_path)) {
        return IniText();
    }
    const auto file = readFile(m_path, maximumSize);
    return file ? IniText::parse(*file) : std::nullopt;
}

QByteArray DefaultsStore::encodedValue(const QString& key) const {
    const auto ini = read();
    return ini ? ini->value(key.toUtf8()).value_or(QByteArray()) : QByteArray();
}

std::expected<void, FileError>
DefaultsStore::write(const std::map<QString, QByteArray>& encodedValues) {
    if (const std::error_code error = makePrivateDirectory(m_path.parent_path())) {
        return std::unexpected(saveError(m_path, error.value()));
    }
    const auto locked = lock(m_path);
    if (!locked) {
        return std::unexpected(saveError(m_path, locked.error().value()));
    }
    auto ini = read();
    if (!ini) {
        return std::unexpected(FileError{
            Message(QT_TRANSLATE_NOOP("Message", "%1 does not hold settings, and stays as it is."),
                    {QFile(m_path).fileName()})});
    }
    const QByteArray before = ini->file();
    for (const auto& [key, value] : encodedValues) {
        ini->setValue(key.toUtf8(), value);
    }
    const QByteArray after = ini->file();
    if (after == before) {
        return {};
    }
    return saveFile(m_path, after);
}

} // namespace tallyvane::model
