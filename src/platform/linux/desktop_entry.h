#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

/// Reading and writing of .desktop files after the Desktop Entry Specification 1.5.
namespace tallyvane::platform {

/// The keys of the group "Desktop Entry" and their values, escapes (\s, \n, \t, \r, \\) undone; a
/// later line of the same key wins. What is no key line is passed over.
[[nodiscard]] QMap<QString, QString> readDesktopEntry(const QByteArray& file);

/// The text of a string value, escaped as a line of the file needs it.
[[nodiscard]] QString escapedValue(QString text);

/// One argument in quotes, to be a part of the value of Exec; not yet escaped.
[[nodiscard]] QString quotedArgument(const QString& argument);

/// The program that a value of Exec names, without its quotes; empty when it names none.
[[nodiscard]] QString programOfExec(const QString& exec);

} // namespace tallyvane::platform
