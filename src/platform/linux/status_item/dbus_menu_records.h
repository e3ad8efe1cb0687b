#pragma once

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusVariant>

namespace tallyvane::platform {

/// Properties of one entry, (ia{sv}).
struct DBusMenuProperties {
    int id = 0;
    QVariantMap values;
};

/// Names of properties of one entry that are no more, (ias).
struct DBusMenuRemovedProperties {
    int id = 0;
    QStringList names;
};

/// An entry and those below it, (ia{sv}av), where each of the last is of the same kind.
struct DBusMenuLayout {
    int id = 0;
    QVariantMap values;
    QList<QDBusVariant> children;
};

/// What happened to an entry, (isvu).
struct DBusMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};

/// Lets QtDBus read and write the record.
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& properties);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& properties);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuRemovedProperties& removed);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuRemovedProperties& removed);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event);

/// Makes the records and lists of them known to QtDBus. May be called again.
void registerDBusMenuRecords();

} // namespace tallyvane::platform
