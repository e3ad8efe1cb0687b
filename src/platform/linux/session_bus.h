#pragma once

#include <QtCore/QByteArray>

namespace tallyvane::platform {

/// Makes this program run without a session bus if the one at `busAddress`, the value of
/// $DBUS_SESSION_BUS_ADDRESS, accepts connections but says nothing for three seconds: QtDBus would
/// wait for its greeting for ever. Call it before anything uses the bus. Checks only buses behind a
/// Unix socket.
void leaveSilentSessionBus(const QByteArray& busAddress);

/// Waits, at most a second, until the bus has read all that this program has sent. What was sent
/// last is lost if the program ends without this.
void flushSessionBus();

} // namespace tallyvane::platform
