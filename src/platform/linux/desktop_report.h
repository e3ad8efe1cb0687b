#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QString>

#include <chrono>
#include <optional>

namespace tallyvane::platform {

/// Who offers what on the session bus. Each is the name of a process, empty if that cannot be seen
/// or the bus would start it on demand; nothing if nobody offers it.
struct DesktopReport {
    bool hasBus = false;
    std::optional<QString> program;            ///< the running program of ours
    std::optional<QString> statusWatcher;      ///< org.kde.StatusNotifierWatcher
    bool hasStatusHost = false;                ///< whether the watcher knows a host
    std::optional<QString> notificationDaemon; ///< org.freedesktop.Notifications, if it runs
    std::optional<QString> portal;             ///< org.freedesktop.portal.Desktop
};

/// Asks the session bus, and starts nothing. Each question waits at most `patience`.
[[nodiscard]] QCoro::Task<DesktopReport>
readDesktop(std::chrono::milliseconds patience = std::chrono::seconds{2});

/// What to install or enable on this desktop, a value of $XDG_CURRENT_DESKTOP, so that it shows
/// status items: one or two sentences.
[[nodiscard]] QString statusHostAdvice(const QString& currentDesktop);

} // namespace tallyvane::platform
