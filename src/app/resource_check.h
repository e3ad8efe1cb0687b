#pragma once

#include "platform/linux/spare_resources.h"

namespace tallyvane::app {

/// For Qt's event loop, and for the one file at a time that a command reads.
inline constexpr platform::SpareResources commandResources{.descriptors = 3};
/// 1.5 times what the bus, the network and the children of a refresh were measured to use.
inline constexpr platform::SpareResources refreshResources{.descriptors = 32, .threads = 12};

/// The same with the display and the windows.
inline constexpr platform::SpareResources desktopResources{.descriptors = 64, .threads = 24};

/// Returns whether the program can get that much, and reports on standard error if not. Without the
/// check, libraries abort or hang.
[[nodiscard]] bool checkResources(platform::SpareResources needed);

} // namespace tallyvane::app
