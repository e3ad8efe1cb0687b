#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QString>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace tallyvane::model {

/// A small key-value file in INI form that other programs of the user may share. Values reach the
/// disk with each write. Used by one thread at a time.
class DefaultsStore {
public:
    /// Opens or makes the file; nothing when it is unreadable, unwritable, malformed, or no file.
    [[nodiscard]] static std::optional<DefaultsStore> open(const std::filesystem::path& path);

    /// Opens the first of the two that can be opened; when neither can, the second serves for
    /// reading and keeps nothing.
    [[nodiscard]] static DefaultsStore openFirst(const std::filesystem::path& preferred,
                                                 const std::filesystem::path& otherwise);

    /// The value of a key, read anew from the file; empty when absent.
    [[nodiscard]] QByteArray data(const QString& key);
    [[nodiscard]] QString text(const QString& key);
    [[nodiscard]] std::int64_t integer(const QString& key); ///< 0 when absent
    [[nodiscard]] bool flag(const QString& key);            ///< false when absent or malformed

    /// A value that finds no room on the disk is dropped, and the file stays as it was.
    void setData(const QString& key, const QByteArray& value);
    void setText(const QString& key, const QString& value);
    void setInteger(const QString& key, std::int64_t value);
    void setFlag(const QString& key, bool value);

private:
    explicit DefaultsStore(const std::filesystem::path& path);
    QVariant get(const QString& key);
    void set(const QString& key, const QVariant& value);

    std::filesystem::path m_path;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace tallyvane::model
