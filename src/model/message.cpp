#include "model/message.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

#include <algorithm>

namespace tallyvane::model {

namespace {

/// Replaces all place markers at once: an argument may hold what looks like one. "%L1" writes a
/// whole number in the language's digits.
QString filled(const QString& text, const QStringList& arguments) {
    static const QRegularExpression marker(QStringLiteral("%(L?)([1-9])"));
    QString result;
    qsizetype end = 0;
    for (auto markers = marker.globalMatch(text); markers.hasNext();) {
        const QRegularExpressionMatch match = markers.next();
        const QString argument = arguments.value(match.captured(2).toInt() - 1);
        result += text.sliced(end, match.capturedStart() - end);
        result +=
            match.captured(1).isEmpty() ? argument : QLocale().toString(argument.toLongLong());
        end = match.capturedEnd();
    }
    return result + text.sliced(end);
}

} // namespace

Message::Message(const char* source, QStringList arguments)
    : m_source(source), m_arguments(std::move(arguments)) {}

Message Message::foreign(const QString& text) {
    return text.isEmpty() ? Message() : Message("%1", {text});
}

QString Message::sourceText() const {
    return filled(QString::fromUtf8(m_source), m_arguments);
}

QString Message::text() const {
    QStringList arguments = m_arguments;
    std::ranges::transform(arguments, arguments.begin(), translated);
    return filled(QCoreApplication::translate("Message", m_source), arguments);
}

QString translated(const QString& source) {
    return QCoreApplication::translate("Message", source.toUtf8());
}

} // namespace tallyvane::model
