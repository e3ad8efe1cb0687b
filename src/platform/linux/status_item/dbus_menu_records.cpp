#include "platform/linux/status_item/dbus_menu_records.h"

#include <QtDBus/QDBusMetaType>

namespace tallyvane::platform {

namespace {

template <typename... Fields>
QDBusArgument& write(QDBusArgument& argument, const Fields&... fields) {
    argument.beginStructure();
    (argument << ... << fields);
    argument.endStructure();
    return argument;
}

template <typename... Fields>
const QDBusArgument& read(const QDBusArgument& argument, Fields&... fields) {
    argument.beginStructure();
    (argument >> ... >> fields);
    argument.endStructure();
    return argument;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& properties) {
    return write(argument, properties.id, properties.values);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& properties) {
    return read(argument, properties.id, properties.values);
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuRemovedProperties& removed) {
    return write(argument, removed.id, removed.names);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuRemovedProperties& removed) {
    return read(argument, removed.id, removed.names);
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuLayout& layout) {
    return write(argument, layout.id, layout.values, layout.children);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuLayout& layout) {
    return read(argument, layout.id, layout.values, layout.children);
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event) {
    return write(argument, event.id, event.name, event.data, event.timestamp);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event) {
    return read(argument, event.id, event.name, event.data, event.timestamp);
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
