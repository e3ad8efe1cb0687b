#include "model/defaults_store.h"

#include "model/file_io.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace tallyvane::model {

namespace {

/// Whether the file can be written anew. QSettings of Qt 6.4 takes no notice of a full disk and
/// would leave an empty file.
bool hasRoom(const std::filesystem::path& file) {
    constexpr std::uintmax_t spare = 65536;
    std::error_code ignored;
    const std::uintmax_t size = std::filesystem::file_size(file, ignored);
    const std::uintmax_t needed = spare + (ignored ? 0 : size);
    return std::filesystem::space(file.parent_path(), ignored).available >= needed;
}

} // namespace

DefaultsStore::DefaultsStore(const std::filesystem::path& path)
    : m_path(path),
      m_settings(std::make_unique<QSettings>(QFile(path).fileName(), QSettings::IniFormat)) {}

std::optional<DefaultsStore> DefaultsStore::open(const std::filesystem::path& path) {
    makePrivateDirectory(path.parent_path());
    const QFileInfo file(path);
    if (file.exists() && !(file.isFile() && file.isReadable() && file.isWritable())) {
        return std::nullopt;
    }
    DefaultsStore store(path);
    if (store.m_settings->status() != QSettings::NoError || !store.m_settings->isWritable()) {
        return std::nullopt;
    }
    return store;
}

DefaultsStore DefaultsStore::openFirst(const std::filesystem::path& preferred,
                                       const std::filesystem::path& otherwise) {
    std::optional<DefaultsStore> store = open(preferred);
    return store ? std::move(*store) : DefaultsStore(otherwise);
}

QByteArray DefaultsStore::data(const QString& key) {
    return get(key).toByteArray();
}

QString DefaultsStore::text(const QString& key) {
    return get(key).toString();
}

std::int64_t DefaultsStore::integer(const QString& key) {
    return get(key).toLongLong();
}

bool DefaultsStore::flag(const QString& key) {
    return text(key) == u"true"; // QVariant would take any word but "false" for true
}

void DefaultsStore::setData(const QString& key, const QByteArray& value) {
    set(key, value);
}

void DefaultsStore::setText(const QString& key, const QString& value) {
    set(key, value);
}

void DefaultsStore::setInteger(const QString& key, std::int64_t value) {
    set(key, qlonglong{value});
}

void DefaultsStore::setFlag(const QString& key, bool value) {
    set(key, value);
}

QVariant DefaultsStore::get(const QString& key) {
    m_settings->sync();
    return m_settings->value(key);
}

void DefaultsStore::set(const QString& key, const QVariant& value) {
    if (!hasRoom(m_path)) {
        return;
    }
    makePrivateFile(m_path); // QSettings would let others read a file that it makes
    m_settings->setValue(key, value);
    m_settings->sync();
}

} // namespace tallyvane::model
