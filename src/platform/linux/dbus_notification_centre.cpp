#include "platform/linux/dbus_notification_centre.h"

#include "platform/application_id.h"
#include "platform/linux/bus_call.h"
#include "platform/linux/notification_daemon.h"

#include <QtDBus/QDBusServiceWatcher>

#include <utility>

namespace tallyvane::platform {

static const QString defaultAction = QStringLiteral("default");

void DBusNotificationCentre::post(const Notification& notification) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    listen();
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QString(applicationId)},
                            {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
                            {QStringLiteral("urgency"), QVariant::fromValue(uchar{1})}, // normal
                            {QStringLiteral("x-tallyvane-identifier"), notification.identifier}};
    QDBusMessage call = notificationDaemonCall(QStringLiteral("Notify"));
    call.setArguments({QStringLiteral("Tallyvane"), uint{0}, QString(applicationId),
                       notification.title, notification.body,
                       QStringList{defaultAction, QStringLiteral("Open Tallyvane")}, hints, -1});
    QCoro::connect(callBus(bus, call, m_patience), this, [this](const BusReply& id) {
        if (id && id->signature() == u"u") {
            m_tokens.insert(id->arguments().constFirst().toUInt(), {});
        }
    });
}

QCoro::Task<bool> DBusNotificationCentre::isAuthorized() {
    return areNotificationsOn(m_searchPath, m_patience);
}

void DBusNotificationCentre::listen() {
    if (std::exchange(m_isListening, true)) {
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto connectSignal = [&](const char* name, const char* slot) {
        bus.connect(notificationsName, notificationsPath, notificationsName,
                    QString::fromLatin1(name), this, slot);
    };
    connectSignal("ActivationToken", SLOT(keepToken(uint, QString)));
    connectSignal("ActionInvoked", SLOT(activate(uint, QString)));
    connectSignal("NotificationClosed", SLOT(forget(uint)));
    // A new daemon reuses the ids of the old one.
    const auto* watcher = new QDBusServiceWatcher(
        notificationsName, bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { m_tokens.clear(); });
}

void DBusNotificationCentre::keepToken(uint id, const QString& token) {
    if (const auto shown = m_tokens.find(id); shown != m_tokens.end()) {
        *shown = token;
    }
}

void DBusNotificationCentre::activate(uint id, const QString& action) {
    if (m_tokens.contains(id) && action == defaultAction) {
        Q_EMIT activated(m_tokens.take(id));
    }
}

void DBusNotificationCentre::forget(uint id) {
    m_tokens.remove(id);
}

} // namespace tallyvane::platform
