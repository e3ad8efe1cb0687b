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

/// A small key-value file in the INI format of QSettings, which may be shared with other programs:
/// each call reads it anew and preserves what others wrote. A successful write is on the disk. Not
/// thread-safe.
class DefaultsStore {
public:
    /// Opens a file that need not exist yet, and creates nothing. Nothing when it is unreadable,
    /// unwritable, malformed, larger than 16 MB, or not a regular file.
    [[nodiscard]] static std::optional<DefaultsStore> open(const std::filesystem::path& path);

    /// Opens `preferred`, or else `otherwise`. If neither can be opened, the result is `otherwise`,
    /// and every write to it fails.
    [[nodiscard]] static DefaultsStore openFirst(const std::filesystem::path& preferred,
                                                 const std::filesystem::path& otherwise);

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// The value of a key; empty when absent or of another type.
    [[nodiscard]] QByteArray data(const QString& key) const;
    [[nodiscard]] QString text(const QString& key) const;
    [[nodiscard]] std::int64_t integer(const QString& key) const; ///< 0 when absent or malformed
    [[nodiscard]] bool flag(const QString& key) const; ///< false when absent or malformed

    /// Waits at most 250 ms while another program is writing. On an error the file is unchanged.
    std::expected<void, FileError> setData(const QString& key, const QByteArray& value);
    std::expected<void, FileError> setText(const QString& key, const QString& value);
    std::expected<void, FileError> setFlag(const QString& key, bool value);
    /// Sets all of them or none.
    std::expected<void, FileError> setIntegers(const std::map<QString, std::int64_t>& values);

private:
    explicit DefaultsStore(std::filesystem::path path) : m_path(std::move(path)) {}

    /// Empty when there is no file; nothing when the file is unreadable or malformed.
    [[nodiscard]] std::optional<IniText> read() const;
    [[nodiscard]] QByteArray encodedValue(const QString& key) const; ///< empty when absent
    std::expected<void, FileError> write(const std::map<QString, QByteArray>& encodedValues);

    std::filesystem::path m_path;
};

} // namespace tallyvane::model
