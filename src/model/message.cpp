#include "model/message.h"

#include <algorithm>

namespace tallyvane::model {

namespace {

/// Replaces all place markers at once: an argument may hold what looks like one.
QString filled(QString text, const QStringList& arguments) {
    for (qsizetype at = text.indexOf(u'%'); at >= 0 && at + 1 < text.size();) {
        const qsizetype index = text.at(at + 1).digitValue() - 1;
        const QString value =
            index >= 0 && index < arguments.size() ? arguments[index] : text.sliced(at, 2);
        text.replace(at, 2, value);
        at = text.indexOf(u'%', at + value.size());
    }
    return text;
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
