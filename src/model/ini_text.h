#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>
#include <vector>

/// The INI form of Qt's settings (QSettings::IniFormat of Qt 6), which other programs of the user
/// may write too.
namespace tallyvane::model {

/// A whole file. What it is not asked to change stays byte for byte.
class IniText {
public:
    IniText() = default;

    /// Nothing when a line is neither empty, a comment, a section nor a key with a value, or when a
    /// quotation, a section's name or the last line has no end.
    [[nodiscard]] static std::optional<IniText> parse(const QByteArray& file);

    /// The encoded value of a key outside of named sections; of several the last. Nothing when the
    /// key is not there.
    [[nodiscard]] std::optional<QByteArray> value(const QByteArray& key) const;

    /// `encoded` is one line.
    void setValue(const QByteArray& key, const QByteArray& encoded);

    [[nodiscard]] QByteArray file() const;

private:
    struct Line {
        QByteArray text; ///< with its end
        QByteArray key;  ///< empty unless it is one outside of named sections
    };

    std::vector<Line> m_lines;
    std::size_t m_newKeyLine = 0; ///< where a new key goes; 0: its section is missing
};

/// The text that an encoded value stands for; nothing for a list and for other types than text.
[[nodiscard]] std::optional<QString> decodedIniText(const QByteArray& encoded);
[[nodiscard]] QByteArray encodedIniText(const QString& text);

/// The same for bytes, written as "@ByteArray(...)"; plain text is read as its UTF-8.
[[nodiscard]] std::optional<QByteArray> decodedIniBytes(const QByteArray& encoded);
[[nodiscard]] QByteArray encodedIniBytes(const QByteArray& bytes);

} // namespace tallyvane::model
