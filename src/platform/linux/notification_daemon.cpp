#include "platform/linux/notification_daemon.h"

#include "platform/linux/bus_call.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QProcess>
#include <QtCore/QPromise>
#include <QtCore/QStandardPaths>
#include <QtCore/QTimer>

using std::chrono::milliseconds;

namespace tallyvane::platform {

namespace {

QCoro::Task<bool> isTrue(QDBusMessage question, milliseconds patience) {
    const BusValue value = co_await readBusValue(QDBusConnection::sessionBus(), question, patience);
    co_return value && value->toBool();
}

QDBusMessage daemonPropertyRead(const QString& interface, const QString& property) {
    return propertyRead(notificationsName, notificationsPath, interface, property);
}

/// Whether a GSettings key holds false. A child process reads it: GLib would abort this one on a
/// missing schema, and keep threads and a second connection to the bus.
QCoro::Task<bool> isGSettingFalse(QString program, QString schema, QString key,
                                  milliseconds patience) {
    QPromise<void> end;
    end.start();
    const QFuture<void> hasEnded = end.future();
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    // Also emitted when the program cannot be started, unlike finished().
    QObject::connect(&process, &QProcess::stateChanged, [&end](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning) {
            end.finish();
        }
    });
    QTimer::singleShot(patience, &process, &QProcess::kill);
    process.start(program, {QStringLiteral("get"), schema, key});
    co_await hasEnded;
    co_return process.readAllStandardOutput().trimmed() == "false";
}

QCoro::Task<bool> isOffInGnome(QStringList searchPath, milliseconds patience) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("gsettings"), searchPath);
    if (program.isEmpty()) {
        co_return false;
    }
    const QString schema = QStringLiteral("org.gnome.desktop.notifications");
    const QString ours = schema + QStringLiteral(".application:/org/gnome/desktop/notifications/"
                                                 "application/org-corvelle-tallyvane/");
    QCoro::Task<bool> withoutBanners =
        isGSettingFalse(program, schema, QStringLiteral("show-banners"), patience);
    QCoro::Task<bool> disabled = isGSettingFalse(program, ours, QStringLiteral("enable"), patience);
    const bool isOffForAll = co_await withoutBanners;
    const bool isOffForUs = co_await disabled;
    co_return isOffForAll || isOffForUs;
}

} // namespace

QDBusMessage notificationDaemonCall(const QString& method) {
    return QDBusMessage::createMethodCall(notificationsName, notificationsPath, notificationsName,
                                          method);
}

QCoro::Task<bool> areNotificationsOn(QStringList searchPath, milliseconds patience) {
    const BusReply information =
        co_await callBus(QDBusConnection::sessionBus(),
                         notificationDaemonCall(QStringLiteral("GetServerInformation")), patience);
    if (!information) {
        co_return information.error() == BusError::failed;
    }
    const QString daemon = information->arguments().value(0).toString();
    bool isOff = false;
    if (daemon == u"dunst") {
        isOff = co_await isTrue(
            daemonPropertyRead(QStringLiteral("org.dunstproject.cmd0"), QStringLiteral("paused")),
            patience);
    } else if (daemon == u"Xfce Notify Daemon") {
        const auto question = QDBusMessage::createMethodCall(QStringLiteral("org.xfce.Xfconf"),
                                                             QStringLiteral("/org/xfce/Xfconf"),
                                                             QStringLiteral("org.xfce.Xfconf"),
                                                             QStringLiteral("GetProperty"))
                              << QStringLiteral("xfce4-notifyd")
                              << QStringLiteral("/do-not-disturb");
        isOff = co_await isTrue(question, patience);
    } else if (daemon == u"Plasma") {
        isOff = co_await isTrue(daemonPropertyRead(notificationsName, QStringLiteral("Inhibited")),
                                patience);
    } else if (daemon == u"gnome-shell") {
        isOff = co_await isOffInGnome(searchPath, patience);
    }
    co_return !isOff;
}

} // namespace tallyvane::platform
