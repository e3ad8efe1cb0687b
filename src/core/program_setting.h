#pragma once

#include <QtCore/QString>

#include <expected>
#include <functional>

namespace tallyvane::core {

/// Which program an assistant's command line is, as the user sees and changes it.
struct ProgramSetting {
    struct State {
        QString path;   ///< of the program in use; empty if there is none
        QString chosen; ///< the path that the user chose; empty: the program is looked for
        QString error;  ///< why there is no program; empty if there is one
    };

    std::function<State()> state;
    /// Takes a path, empty to look for the program again, and refreshes. The error is a sentence
    /// for the user.
    std::function<std::expected<void, QString>(const QString& path)> choose;
    QString home; ///< the user's home directory

    /// The path with "~" in place of the home directory.
    [[nodiscard]] QString shortened(const QString& path) const {
        return path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
    }
    [[nodiscard]] QString expanded(const QString& path) const {
        return path.startsWith(QStringLiteral("~/")) ? home + path.sliced(1) : path;
    }
};

} // namespace tallyvane::core
