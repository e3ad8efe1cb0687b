#pragma once

#include "app/desktop/windows.h"

#include <expected>

namespace tallyvane::app {

/// Loads the library of the windows, which lies beside this program or in the place where it is
/// installed. The error is a text for the user.
[[nodiscard]] std::expected<std::unique_ptr<Windows>, QString>
loadWindows(const WindowsContext& context);

} // namespace tallyvane::app
