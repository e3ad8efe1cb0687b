#pragma once

#include "platform/linux/spare_resources.h"

namespace tallyvane::app {

/// What Qt takes for its event loop, beside the one file at a time that a command reads.
inline constexpr platform::SpareResources commandResources{.descriptors = 3};
/// What the bus, the network and the children of a refresh were seen to take, and half as much
/// again.
inline constexpr platform::SpareResources refreshResources{.descriptors = 32, .threads = 12};

/// As above, with the display and the windows.
inline constexpr platform::SpareResources desktopResources{.descriptors = 64, .threads = 24};

/// Whether the program will get that much; a message on standard error tells why not. Libraries
/// abort, or wait for ever, where they do not get it.
[[nodiscard]] bool checkResources(platform::SpareResources needed);

} // namespace tallyvane::app
