#pragma once

#include "platform/linux/status_item/dbus_structure.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusVariant>

namespace tallyvane::platform {

/// Properties of one entry, (ia{sv}).
struct DBusMenuProperties {
    int id = 0;
    QVariantMap values;
};
template <>
inline constexpr std::tuple dbusFields<DBusMenuProperties>{&DBusMenuProperties::id,
                                                           &DBusMenuProperties::values};

/// Names of properties that one entry no longer has, (ias).
struct DBusMenuRemovedProperties {
    int id = 0;
    QStringList names;
};
template <>
inline constexpr std::tuple dbusFields<DBusMenuRemovedProperties>{
    &DBusMenuRemovedProperties::id, &DBusMenuRemovedProperties::names};

/// An entry and its children, (ia{sv}av), where each child is such a record too.
struct DBusMenuLayout {
    int id = 0;
    QVariantMap values;
    QList<QDBusVariant> children;
};
template <>
inline constexpr std::tuple dbusFields<DBusMenuLayout>{&DBusMenuLayout::id, &DBusMenuLayout::values,
                                                       &DBusMenuLayout::children};

/// What happened to an entry, (isvu).
struct DBusMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};
template <>
inline constexpr std::tuple dbusFields<DBusMenuEvent>{
    &DBusMenuEvent::id, &DBusMenuEvent::name, &DBusMenuEvent::data, &DBusMenuEvent::timestamp};

/// Makes the records and lists of them known to QtDBus. May be called again.
void registerDBusMenuRecords();

} // namespace tallyvane::platform
