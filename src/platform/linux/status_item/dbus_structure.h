#pragma once

#include <QtDBus/QDBusArgument>

#include <tuple>

namespace tallyvane::platform {

/// Pointers to the members that make up a record as a D-Bus structure, in order. Specialised for
/// each such record; QtDBus then reads and writes it by the operators below.
template <typename Record>
inline constexpr std::tuple<> dbusFields;

template <typename Record>
concept DBusStructure = std::tuple_size_v<decltype(dbusFields<Record>)> != 0;

template <DBusStructure Record>
QDBusArgument& operator<<(QDBusArgument& argument, const Record& record) {
    argument.beginStructure();
    std::apply([&](auto... fields) { (argument << ... << (record.*fields)); }, dbusFields<Record>);
    argument.endStructure();
    return argument;
}

template <DBusStructure Record>
const QDBusArgument& operator>>(const QDBusArgument& argument, Record& record) {
    argument.beginStructure();
    std::apply([&](auto... fields) { (argument >> ... >> (record.*fields)); }, dbusFields<Record>);
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): as QtDBus wants it
}

} // namespace tallyvane::platform
