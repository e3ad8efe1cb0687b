#include "model/ini_text.h"

#include <algorithm>
#include <array>

namespace tallyvane::model {

namespace {

constexpr QLatin1StringView bytesStart{"@ByteArray("};

bool isComment(QByteArrayView line) {
    return line.startsWith(';') || line.startsWith('#');
}

/// The length of the logical line at the start of `text`, with its line feed. A quotation or a
/// backslash continues a line, but not in a comment or a section name. Nothing when the text ends
/// before the line does.
std::optional<qsizetype> lineLength(QByteArrayView text) {
    const qsizetype feed = text.indexOf('\n');
    const qsizetype physicalLength = feed < 0 ? text.size() : feed + 1;
    const QByteArrayView start = text.first(physicalLength).trimmed();
    if (start.startsWith('[') || isComment(start)) {
        return physicalLength;
    }
    bool isOpen = false; // continued, but at the end of the text
    bool isQuoted = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (character == '\n' && !isQuoted) {
            return at + 1;
        }
        if (character == '"') {
            isQuoted = !isQuoted;
        } else if (character == '\\') {
            const QByteArrayView rest = text.sliced(at + 1);
            isOpen = rest.trimmed().isEmpty();
            at += rest.startsWith("\r\n") ? 2 : 1;
        }
    }
    return isOpen || isQuoted ? std::nullopt : std::optional(text.size());
}

bool isGeneral(QByteArrayView sectionName) {
    return sectionName.compare(QByteArrayView("general"), Qt::CaseInsensitive) == 0;
}

bool isHexDigit(QChar character) {
    return (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f') ||
           (character >= u'A' && character <= u'F');
}

struct Escape {
    QChar letter;
    QChar meaning;
};
constexpr std::array escapes{Escape{u'a', u'\a'},  Escape{u'b', u'\b'}, Escape{u'f', u'\f'},
                             Escape{u'n', u'\n'},  Escape{u'r', u'\r'}, Escape{u't', u'\t'},
                             Escape{u'v', u'\v'},  Escape{u'"', u'"'},  Escape{u'\'', u'\''},
                             Escape{u'\\', u'\\'}, Escape{u'?', u'?'}};

bool isOctalDigit(QChar character) {
    return character >= u'0' && character <= u'7';
}

/// Removes the escape that follows a backslash from the front of `rest` and returns its meaning.
QString takeEscaped(QStringView& rest) {
    const auto takeNumber = [&rest](bool (*isDigit)(QChar), int base) {
        const auto* end = std::ranges::find_if_not(rest, isDigit);
        const QStringView digits = rest.first(end - rest.begin());
        rest = rest.sliced(digits.size());
        return QString(QChar(static_cast<char16_t>(digits.toUInt(nullptr, base))));
    };
    if (rest.isEmpty()) {
        return {};
    }
    if (isOctalDigit(rest.front())) {
        return takeNumber(isOctalDigit, 8);
    }
    const QChar letter = rest.front();
    rest = rest.sliced(1);
    if (letter == u'x') {
        return takeNumber(isHexDigit, 16);
    }
    const auto escape = std::ranges::find(escapes, letter, &Escape::letter);
    if (escape != escapes.end()) {
        return QString(escape->meaning);
    }
    return letter == u'\n' || letter == u'\r' ? QString() : QString(letter);
}

/// Undoes quoting and escaping; nothing for a list, which has unquoted commas.
std::optional<QString> unquoted(const QByteArray& encoded) {
    const QString all = QString::fromUtf8(encoded.trimmed());
    QStringView rest = all;
    QString text;
    bool isQuoted = false;
    while (!rest.isEmpty()) {
        const QChar character = rest.front();
        rest = rest.sliced(1);
        if (character == u'\\') {
            text += takeEscaped(rest);
        } else if (character == u'"') {
            isQuoted = !isQuoted;
        } else if (character == u',' && !isQuoted) {
            return std::nullopt;
        } else {
            text += character;
        }
    }
    return text;
}

QByteArray quoted(const QString& text) {
    QString line = QStringLiteral("\"");
    bool isAfterNumber = false; // which would absorb a hexadecimal digit
    for (const QChar character : text) {
        const bool isNumber =
            character != u'\n' && (character.unicode() < 0x20 || character.unicode() == 0x7F ||
                                   (isAfterNumber && isHexDigit(character)));
        if (isNumber) {
            line += QStringLiteral("\\x") + QString::number(character.unicode(), 16);
        } else if (character == u'\n') {
            line += QStringLiteral("\\n");
        } else if (character == u'"' || character == u'\\') {
            line += u'\\';
            line += character;
        } else {
            line += character;
        }
        isAfterNumber = isNumber;
    }
    return (line + u'"').toUtf8();
}

} // namespace

std::optional<IniText> IniText::parse(const QByteArray& file) {
    if (file.contains('\0')) {
        return std::nullopt;
    }
    IniText ini;
    bool isInGeneral = true;
    QByteArrayView rest = file;
    while (!rest.isEmpty()) {
        const auto length = lineLength(rest);
        if (!length) {
            return std::nullopt;
        }
        const QByteArrayView line = rest.first(*length).trimmed();
        QByteArray key;
        if (line.startsWith('[')) {
            const qsizetype end = line.indexOf(']');
            if (end < 0) {
                return std::nullopt;
            }
            isInGeneral = isGeneral(line.sliced(1, end - 1).trimmed());
        } else if (!line.isEmpty() && !isComment(line)) {
            const qsizetype equals = line.indexOf('=');
            if (equals < 0) {
                return std::nullopt;
            }
            if (isInGeneral) {
                key = line.first(equals).trimmed().toByteArray();
            }
        }
        ini.m_lines.push_back({rest.first(*length).toByteArray(), key});
        if (isInGeneral && !line.isEmpty()) {
            ini.m_newKeyLine = ini.m_lines.size();
        }
        rest = rest.sliced(*length);
    }
    return ini;
}

std::optional<QByteArray> IniText::value(const QByteArray& key) const {
    const auto line = std::ranges::find(m_lines.rbegin(), m_lines.rend(), key, &Line::key);
    if (line == m_lines.rend()) {
        return std::nullopt;
    }
    return line->text.sliced(line->text.indexOf('=') + 1).trimmed();
}

void IniText::setValue(const QByteArray& key, const QByteArray& encoded) {
    const QByteArray text = key + '=' + encoded + '\n';
    const auto line = std::ranges::find(m_lines.rbegin(), m_lines.rend(), key, &Line::key);
    if (line != m_lines.rend()) {
        line->text = text;
        return;
    }
    if (m_newKeyLine == 0) {
        m_lines.insert(m_lines.begin(), {"[General]\n", {}});
        m_newKeyLine = 1;
    }
    QByteArray& before = m_lines[m_newKeyLine - 1].text;
    if (!before.endsWith('\n')) {
        before += '\n';
    }
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(m_newKeyLine), {text, key});
    ++m_newKeyLine;
}

QByteArray IniText::file() const {
    QByteArray file;
    for (const Line& line : m_lines) {
        file += line.text;
    }
    return file;
}

std::optional<QString> decodedIniText(const QByteArray& encoded) {
    auto text = unquoted(encoded);
    if (!text || !text->startsWith(u'@')) {
        return text;
    }
    return text->startsWith(u"@@") ? std::optional(text->sliced(1)) : std::nullopt;
}

QByteArray encodedIniText(const QString& text) {
    return quoted(text.startsWith(u'@') ? u'@' + text : text);
}

std::optional<QByteArray> decodedIniBytes(const QByteArray& encoded) {
    if (const auto text = unquoted(encoded);
        text && text->startsWith(bytesStart) && text->endsWith(u')')) {
        return text->sliced(bytesStart.size()).chopped(1).toLatin1();
    }
    const auto text = decodedIniText(encoded);
    return text ? std::optional(text->toUtf8()) : std::nullopt;
}

QByteArray encodedIniBytes(const QByteArray& bytes) {
    return quoted(bytesStart + QString::fromLatin1(bytes) + u')');
}

} // namespace tallyvane::model
