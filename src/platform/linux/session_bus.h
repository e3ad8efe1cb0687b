#pragma once

#include <QtCore/QByteArray>

namespace tallyvane::platform {

/// Whether the bus at `busAddress`, a value of $DBUS_SESSION_BUS_ADDRESS, accepts connections but
/// says nothing for three seconds. QtDBus would wait for its greeting forever. Checks only buses
/// behind a Unix socket.
[[nodiscard]] bool isSilentBus(const QByteArray& busAddress);

/// Waits, at most a second, until the bus has read all that this program has sent. What was sent
/// last is lost if the program ends without this.
void flushSessionBus();

} // namespace tallyvane::platform
