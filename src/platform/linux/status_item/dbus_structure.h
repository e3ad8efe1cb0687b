#pragma once

#include <QtDBus/QDBusArgument>

namespace tallyvane::platform {

/// Writes the fields as one D-Bus structure; for a record's `operator<<`.
template <typename... Fields>
QDBusArgument& writeStructure(QDBusArgument& argument, const Fields&... fields) {
    argument.beginStructure();
    (argument << ... << fields);
    argument.endStructure();
    return argument;
}

/// Reads one D-Bus structure into the fields; for a record's `operator>>`.
template <typename... Fields>
const QDBusArgument& readStructure(const QDBusArgument& argument, Fields&... fields) {
    argument.beginStructure();
    (argument >> ... >> fields);
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): as QtDBus wants it
}

} // namespace tallyvane::platform
