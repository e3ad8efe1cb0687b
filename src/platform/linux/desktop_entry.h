#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

/// Reads and writes .desktop files (Desktop Entry Specification 1.5) and files like them.
namespace tallyvane::platform {

/// Returns the keys and unescaped values below a heading, such as "[Desktop Entry]". The last line
/// of a key wins; malformed lines are ignored.
[[nodiscard]] QMap<QString, QString> readKeyFile(const QByteArray& file, QStringView heading);

/// Escapes a text (\s, \n, \t, \r, \\) for use as a string value.
[[nodiscard]] QString escapedValue(const QString& text);

/// Quotes one argument for the value of Exec, which escapedValue() must then escape.
[[nodiscard]] QString quotedArgument(const QString& argument);

/// Returns the program in a value of Exec, unquoted; empty if there is none.
[[nodiscard]] QString programOfExec(const QString& exec);

} // namespace tallyvane::platform
