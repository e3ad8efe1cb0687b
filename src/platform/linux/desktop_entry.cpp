#include "platform/linux/desktop_entry.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <iterator>

namespace tallyvane::platform {

namespace {

struct Escape {
    char16_t letter;
    char16_t character;
};
constexpr Escape escapes[] = {
    {u'\\', u'\\'}, {u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u's', u' '}};

QString unescapedValue(QStringView value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const bool isEscape = value[i] == u'\\' && i + 1 < value.size();
        const auto* known =
            isEscape ? std::ranges::find(escapes, value[i + 1].unicode(), &Escape::letter)
                     : std::end(escapes);
        // Others, such as "\;" in lists, stay.
        if (known == std::end(escapes)) {
            text += value[i];
        } else {
            text += QChar(known->character);
            ++i;
        }
    }
    return text;
}

} // namespace

QMap<QString, QString> readKeyFile(const QByteArray& file, QStringView heading) {
    QMap<QString, QString> entry;
    bool isInGroup = false;
    for (const QString& line : QString::fromUtf8(file).split(u'\n')) {
        const QStringView text = QStringView(line).trimmed();
        const qsizetype equals = text.indexOf(u'=');
        if (text.startsWith(u'[')) {
            isInGroup = text == heading;
        } else if (isInGroup && equals > 0 && !text.startsWith(u'#')) {
            entry[text.first(equals).trimmed().toString()] =
                unescapedValue(text.sliced(equals + 1).trimmed());
        }
    }
    return entry;
}

QString escapedValue(const QString& text) {
    QString value;
    for (const QChar character : text) {
        const auto* known = std::ranges::find(escapes, character.unicode(), &Escape::character);
        if (known == std::end(escapes) || character == u' ') {
            value += character;
        } else {
            value += u'\\';
            value += QChar(known->letter);
        }
    }
    return value;
}

QString quotedArgument(const QString& argument) {
    QString quoted = QStringLiteral("\"");
    for (const QChar character : argument) {
        if (QStringView(u"\"`$\\").contains(character)) {
            quoted += u'\\';
        } else if (character == u'%') {
            quoted += u'%'; // a single one starts a field code
        }
        quoted += character;
    }
    return quoted + u'"';
}

QString programOfExec(const QString& exec) {
    QString program;
    bool isQuoted = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        if (exec[i] == u'"') {
            isQuoted = !isQuoted;
        } else if (exec[i] == u' ' && !isQuoted) {
            break;
        } else {
            const bool isEscape = isQuoted && exec[i] == u'\\' && i + 1 < exec.size();
            program += exec[isEscape ? ++i : i];
        }
    }
    return program.replace(QStringLiteral("%%"), QStringLiteral("%"));
}

} // namespace tallyvane::platform
