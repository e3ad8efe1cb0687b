#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace tallyvane::platform {

struct ProgramCall {
    QString program; ///< absolute path
    QStringList arguments;
};

/// The command that opens the desktop's own notification settings, or nullopt when the desktop is
/// unknown or its program is in none of the folders of `searchPath`. `currentDesktop` has the form
/// of $XDG_CURRENT_DESKTOP: names separated by colons, the most specific first (Desktop Entry
/// Specification 1.5).
[[nodiscard]] std::optional<ProgramCall> notificationSettingsPage(const QString& currentDesktop,
                                                                  const QStringList& searchPath);

} // namespace tallyvane::platform
