#pragma once

#include "model/file_io.h"
#include "model/ini_text.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstdint>
#include <expected>
#include <filesystem>
#include <map>
#include <optional>

namespace tallyvane::model {

/// A small key-value file in the INI form of Qt's settings, which other programs of the user may
/// share: each call reads it anew, and what others wrote there stays as it is. Once a write has
/// succeeded its value is on the disk. Used by one thread at a time.
class DefaultsStore {
public:
    /// Opens the file, which need not exist yet; nothing when it is unreadable, unwritable,
    /// malformed, larger than 16 MB, or no file.
    [[nodiscard]] static std::optional<DefaultsStore> open(const std::filesystem::path& path);

    /// Opens the first of the two that can be opened; when neither can, the second serves for
    /// reading and every write to it fails.
    [[nodiscard]] static DefaultsStore openFirst(const std::filesystem::path& preferred,
                                                 const std::filesystem::path& otherwise);

    /// The value of a key; empty when it is absent or of another type.
    [[nodiscard]] QByteArray data(const QString& key) const;
    [[nodiscard]] QString text(const QString& key) const;
    [[nodiscard]] std::int64_t integer(const QString& key) const; ///< 0 when absent or malformed
    [[nodiscard]] bool flag(const QString& key) const;            ///< false likewise

    /// Waits a quarter of a second at most for another program that is writing. After an error the
    /// file is as it was before.
    std::expected<void, FileError> setData(const QString& key, const QByteArray& value);
    std::expected<void, FileError> setText(const QString& key, const QString& value);
    std::expected<void, FileError> setFlag(const QString& key, bool value);
    /// All of them or none.
    std::expected<void, FileError> setIntegers(const std::map<QString, std::int64_t>& values);

private:
    explicit DefaultsStore(std::filesystem::path path) : m_path(std::move(path)) {}

    /// Nothing when the file is there and cannot be read as what it should be.
    [[nodiscard]] std::optional<IniText> read() const;
    [[nodiscard]] QByteArray encodedValue(const QString& key) const; ///< empty when absent
    std::expected<void, FileError> write(const std::map<QString, QByteArray>& encodedValues);

    std::filesystem::path m_path;
};

} // namespace tallyvane::model
