#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QString>
#include <QtDBus/QDBusMessage>

#include <chrono>

/// The service that shows notifications, of which every desktop has its own.
namespace tallyvane::platform {

/// The service's name on the session bus, and its interface's name.
inline const QString notificationsName = QStringLiteral("org.freedesktop.Notifications");
inline const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");

/// A call of a method of the service.
[[nodiscard]] QDBusMessage notificationDaemonCall(const QString& method);

/// Whether the running daemon, or one that the bus can start, shows our notifications. A daemon
/// takes them even while the user has them off, so each kind is asked in its own way:
///
/// | daemon | off when | seen in |
/// |---|---|---|
/// | dunst | property `paused` of org.dunstproject.cmd0 | 1.9 |
/// | xfce4-notifyd | `/do-not-disturb` of the Xfconf channel xfce4-notifyd | 0.7 |
/// | Plasma | property `Inhibited` of org.freedesktop.Notifications | 5.27 |
/// | GNOME Shell | GSettings `show-banners`, or `enable` of our application, is false | 43 |
///
/// An unknown daemon, one that does not answer within `patience` and one that does not know the
/// question count as on. No session bus, or nobody to call: off.
[[nodiscard]] QCoro::Task<bool> areNotificationsOn(std::chrono::milliseconds patience);

} // namespace tallyvane::platform
