#include "platform/linux/status_item/dbus_menu_records.h"

#include "platform/linux/status_item/dbus_structure.h"

#include <QtDBus/QDBusMetaType>

namespace tallyvane::platform {

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& properties) {
    return writeStructure(argument, properties.id, properties.values);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& properties) {
    return readStructure(argument, properties.id, properties.values);
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuRemovedProperties& removed) {
    return writeStructure(argument, removed.id, removed.names);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuRemovedProperties& removed) {
    return readStructure(argument, removed.id, removed.names);
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuLayout& layout) {
    return writeStructure(argument, layout.id, layout.values, layout.children);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuLayout& layout) {
    return readStructure(argument, layout.id, layout.values, layout.children);
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event) {
    return writeStructure(argument, event.id, event.name, event.data, event.timestamp);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event) {
    return readStructure(argument, event.id, event.name, event.data, event.timestamp);
}

void registerDBusMenuRecords() {
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<QList<DBusMenuProperties>>();
    qDBusRegisterMetaType<DBusMenuRemovedProperties>();
    qDBusRegisterMetaType<QList<DBusMenuRemovedProperties>>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

} // namespace tallyvane::platform
