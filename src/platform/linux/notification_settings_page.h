#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace tallyvane::platform {

/// A program to start.
struct ProgramCall {
    QString program; ///< absolute path
    QStringList arguments;

    bool operator==(const ProgramCall&) const = default;
};

/// What opens the desktop's own settings of notifications; nothing when the desktop is not known or
/// its program is not installed. `currentDesktop` is the value of XDG_CURRENT_DESKTOP: names from
/// the most to the least specific, with colons between (Desktop Entry Specification 1.5).
[[nodiscard]] std::optional<ProgramCall> notificationSettingsPage(const QString& currentDesktop);

} // namespace tallyvane::platform
