#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>
#include <vector>

/// The INI format of QSettings (QSettings::IniFormat in Qt 6).
namespace tallyvane::model {

/// A whole file. Preserves every byte that it is not asked to change.
class IniText {
public:
    IniText() = default;

    /// Fails on a line that is not empty, a comment, a section or a key with a value, on an
    /// unterminated quotation or section name, and when the last line is continued.
    [[nodiscard]] static std::optional<IniText> parse(const QByteArray& file);

    /// The encoded value of a key of the general section; the last one if there are several.
    [[nodiscard]] std::optional<QByteArray> value(const QByteArray& key) const;

    /// Replaces or adds the value of such a key. `encoded` is one line.
    void setValue(const QByteArray& key, const QByteArray& encoded);

    [[nodiscard]] QByteArray file() const;

private:
    struct Line {
        QByteArray text; ///< with its line end
        QByteArray key;  ///< empty unless in the general section
    };

    std::vector<Line> m_lines;
    std::size_t m_newKeyLine = 0; ///< where to add a key; 0 if there is no general section
};

/// Decodes a value; nothing for a list or a type other than text.
[[nodiscard]] std::optional<QString> decodedIniText(const QByteArray& encoded);
[[nodiscard]] QByteArray encodedIniText(const QString& text);

/// The same for bytes, encoded as "@ByteArray(...)"; decodes plain text to UTF-8.
[[nodiscard]] std::optional<QByteArray> decodedIniBytes(const QByteArray& encoded);
[[nodiscard]] QByteArray encodedIniBytes(const QByteArray& bytes);

} // namespace tallyvane::model
