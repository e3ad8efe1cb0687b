#include "platform/linux/dbus_widget_centre.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

namespace tallyvane::platform {

namespace {

void emitSignal(const QString& name, const QVariantList& arguments) {
    QDBusMessage signal =
        QDBusMessage::createSignal(QStringLiteral("/org/corvelle/Tallyvane"),
                                   QStringLiteral("org.corvelle.Tallyvane.Widgets"), name);
    signal.setArguments(arguments);
    if (QDBusConnection bus = QDBusConnection::sessionBus(); bus.isConnected()) {
        bus.send(signal);
    }
}

} // namespace

void DBusWidgetCentre::reloadTimelines(const QString& kind) {
    emitSignal(QStringLiteral("TimelinesReloaded"), {kind});
}

void DBusWidgetCentre::reloadAllTimelines() {
    emitSignal(QStringLiteral("AllTimelinesReloaded"), {});
}

} // namespace tallyvane::platform
