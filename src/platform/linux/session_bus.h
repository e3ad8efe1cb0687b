#pragma once

#include <chrono>

namespace tallyvane::platform {

/// Lets this program do without the session bus when that accepts connections and then is silent:
/// QtDBus would wait for its greeting for ever. Call it before anything uses the bus. Waits for the
/// first word of the bus at most `patience`. Looks at no bus but one behind a Unix socket.
void leaveSilentSessionBus(std::chrono::milliseconds patience = std::chrono::seconds{3});

/// Waits, at most a second, until the bus has read all that this program has sent. Whoever ends the
/// program without this loses what was sent last.
void flushSessionBus();

} // namespace tallyvane::platform
