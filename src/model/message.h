#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

namespace tallyvane::model {

/// A sentence for the user in two languages: that of the source, for files and other programs, and
/// the user's, for windows.
class Message {
public:
    Message() = default;

    /// `source` is marked with QT_TRANSLATE_NOOP("Message", …). The arguments replace %1, %2 and so
    /// on; those that are themselves such sources are translated, too.
    explicit Message(const char* source, QStringList arguments = {});

    /// A text of another program.
    [[nodiscard]] static Message foreign(const QString& text);

    [[nodiscard]] bool isEmpty() const { return m_source.isEmpty(); }
    [[nodiscard]] QString sourceText() const;
    /// In the language of the installed translation.
    [[nodiscard]] QString text() const;

    bool operator==(const Message&) const = default;

private:
    QByteArray m_source;
    QStringList m_arguments;
};

/// `source` in the language of the installed translation if it is the source of a Message, else as
/// it is.
[[nodiscard]] QString translated(const QString& source);

} // namespace tallyvane::model
