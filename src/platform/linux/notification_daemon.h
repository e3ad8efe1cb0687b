#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QStringList>
#include <QtDBus/QDBusMessage>

#include <chrono>

/// The desktop's notification daemon.
namespace tallyvane::platform {

/// Its name on the session bus and the name of its interface.
inline const QString notificationsName = QStringLiteral("org.freedesktop.Notifications");
inline const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");

[[nodiscard]] QDBusMessage notificationDaemonCall(const QString& method);

/// Whether the running daemon, or one that the bus can start, shows our notifications. Daemons
/// accept notifications even while the user has them off, and each has its own way to tell:
///
/// | daemon | off when | seen in |
/// |---|---|---|
/// | dunst | property `paused` of org.dunstproject.cmd0 | 1.9 |
/// | xfce4-notifyd | `/do-not-disturb` of the Xfconf channel xfce4-notifyd | 0.7 |
/// | Plasma | property `Inhibited` of org.freedesktop.Notifications | 5.27 |
/// | GNOME Shell | GSettings `show-banners`, or `enable` of our application, is false | 43 |
///
/// An unknown daemon counts as on, as does one that gives no usable answer within `patience`.
/// Without a session bus or a daemon: off. `searchPath` is where the program gsettings is looked
/// for.
[[nodiscard]] QCoro::Task<bool> areNotificationsOn(QStringList searchPath,
                                                   std::chrono::milliseconds patience);

} // namespace tallyvane::platform
