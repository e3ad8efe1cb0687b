#include "platform/linux/desktop_entry.h"

#include <QtCore/QStringList>

namespace tallyvane::platform {

namespace {

constexpr std::pair<char16_t, QLatin1StringView> valueEscapes[] = {
    {u'\\', QLatin1StringView{"\\\\"}}, // first, since the others bring backslashes in
    {u'\n', QLatin1StringView{"\\n"}},
    {u'\t', QLatin1StringView{"\\t"}},
    {u'\r', QLatin1StringView{"\\r"}},
};

QString unescapedValue(QStringView value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (const QChar escape = value[++i]; escape.unicode()) {
        case u's':
            text += u' ';
            break;
        case u'n':
            text += u'\n';
            break;
        case u't':
            text += u'\t';
            break;
        case u'r':
            text += u'\r';
            break;
        case u'\\':
            text += u'\\';
            break;
        default: // a list's "\;" for instance, which is not ours to undo
            text += u'\\';
            text += escape;
        }
    }
    return text;
}

} // namespace

QMap<QString, QString> readDesktopEntry(const QByteArray& file) {
    QMap<QString, QString> entry;
    bool isInGroup = false;
    for (const QString& line : QString::fromUtf8(file).split(u'\n')) {
        const QStringView text = QStringView(line).trimmed();
        const qsizetype equals = text.indexOf(u'=');
        if (text.startsWith(u'[')) {
            isInGroup = text == u"[Desktop Entry]";
        } else if (isInGroup && equals > 0 && !text.startsWith(u'#')) {
            entry[text.first(equals).trimmed().toString()] =
                unescapedValue(text.sliced(equals + 1).trimmed());
        }
    }
    return entry;
}

QString escapedValue(QString text) {
    for (const auto& [character, escape] : valueEscapes) {
        text.replace(QChar(character), escape);
    }
    return text;
}

QString quotedArgument(const QString& argument) {
    QString quoted = QStringLiteral("\"");
    for (const QChar character : argument) {
        if (QStringView(u"\"`$\\").contains(character)) {
            quoted += u'\\';
        } else if (character == u'%') {
            quoted += u'%'; // alone it begins a field code
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
