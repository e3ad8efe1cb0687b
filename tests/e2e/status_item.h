#pragma once

#include "support/private_bus.h"

namespace tallyvane::tests {

/// How many items the panel shows.
inline qsizetype shownItems() {
    return callOnBus(QStringLiteral("org.kde.StatusNotifierWatcher"), "/StatusNotifierWatcher",
                     "org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierWatcher "
                     "RegisteredStatusNotifierItems")
        .count(":1.");
}

/// A property of the one item in the panel; empty unless there is one.
inline QByteArray item(const QByteArray& property) {
    return shownItems() != 1
               ? ""
               : callOnBus(QStringLiteral("org.corvelle.Tallyvane"), "/StatusNotifierItem",
                           "org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem " +
                               property);
}

} // namespace tallyvane::tests
