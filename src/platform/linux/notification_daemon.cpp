#include "platform/linux/notification_daemon.h"

#include <QCoro/QCoroProcess>
#include <QCoro/QCoroSignal>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusVariant>

using std::chrono::milliseconds;

namespace tallyvane::platform {

namespace {

QCoro::Task<QDBusMessage> replyTo(QDBusMessage call, milliseconds patience) {
    QDBusPendingCallWatcher watcher(
        QDBusConnection::sessionBus().asyncCall(call, static_cast<int>(patience.count())));
    co_await qCoro(&watcher, &QDBusPendingCallWatcher::finished);
    co_return watcher.reply();
}

/// Whether the call's answer is a variant that holds true.
QCoro::Task<bool> answersTrue(QDBusMessage call, milliseconds patience) {
    const QDBusMessage reply = co_await replyTo(call, patience);
    co_return reply.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

QDBusMessage readProperty(const QString& interface, const QString& name) {
    return QDBusMessage::createMethodCall(notificationsName, notificationsPath,
                                          QStringLiteral("org.freedesktop.DBus.Properties"),
                                          QStringLiteral("Get"))
           << interface << name;
}

QDBusMessage readXfconf(const QString& channel, const QString& property) {
    return QDBusMessage::createMethodCall(
               QStringLiteral("org.xfce.Xfconf"), QStringLiteral("/org/xfce/Xfconf"),
               QStringLiteral("org.xfce.Xfconf"), QStringLiteral("GetProperty"))
           << channel << property;
}

/// Whether a GSettings key holds false. A child reads it: in this process the library would abort
/// on a missing schema and keep threads and a second connection to the bus.
QCoro::Task<bool> isGSettingFalse(QString schema, QString key, milliseconds patience) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("gsettings"));
    if (program.isEmpty()) {
        co_return false;
    }
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, {QStringLiteral("get"), schema, key});
    if (!co_await qCoro(process).waitForFinished(patience)) {
        process.kill();
        co_await qCoro(process).waitForFinished(patience);
    }
    co_return process.readAllStandardOutput().trimmed() == "false";
}

QCoro::Task<bool> isOffInGnome(milliseconds patience) {
    const QString schema = QStringLiteral("org.gnome.desktop.notifications");
    const QString ours = schema + QStringLiteral(".application:/org/gnome/desktop/notifications/"
                                                 "application/org-corvelle-tallyvane/");
    QCoro::Task<bool> withoutBanners =
        isGSettingFalse(schema, QStringLiteral("show-banners"), patience);
    QCoro::Task<bool> disabled = isGSettingFalse(ours, QStringLiteral("enable"), patience);
    const bool isOffForAll = co_await withoutBanners;
    const bool isOffForUs = co_await disabled;
    co_return isOffForAll || isOffForUs;
}

} // namespace

QDBusMessage notificationDaemonCall(const QString& method) {
    return QDBusMessage::createMethodCall(notificationsName, notificationsPath, notificationsName,
                                          method);
}

QCoro::Task<bool> areNotificationsOn(milliseconds patience) {
    if (!QDBusConnection::sessionBus().isConnected()) {
        co_return false;
    }
    const QDBusMessage reply =
        co_await replyTo(notificationDaemonCall(QStringLiteral("GetServerInformation")), patience);
    const QString error = reply.errorName();
    if (error == u"org.freedesktop.DBus.Error.ServiceUnknown" ||
        error.startsWith(u"org.freedesktop.DBus.Error.Spawn.")) {
        co_return false;
    }
    const QString daemon = reply.arguments().value(0).toString();
    bool isOff = false;
    if (daemon == u"dunst") {
        isOff = co_await answersTrue(
            readProperty(QStringLiteral("org.dunstproject.cmd0"), QStringLiteral("paused")),
            patience);
    } else if (daemon == u"Xfce Notify Daemon") {
        isOff = co_await answersTrue(
            readXfconf(QStringLiteral("xfce4-notifyd"), QStringLiteral("/do-not-disturb")),
            patience);
    } else if (daemon == u"Plasma") {
        isOff = co_await answersTrue(readProperty(notificationsName, QStringLiteral("Inhibited")),
                                     patience);
    } else if (daemon == u"gnome-shell") {
        isOff = co_await isOffInGnome(patience);
    }
    co_return !isOff;
}

} // namespace tallyvane::platform
