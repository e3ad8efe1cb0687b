#pragma once

#include "app/desktop/windows.h"
#include "app/late_library.h"

#include <expected>

namespace tallyvane::app {

/// The windows library.
class WindowsLibrary {
public:
    /// Loads the library permanently. The error is a text for the user.
    [[nodiscard]] std::expected<std::unique_ptr<Windows>, QString>
    makeWindows(const WindowsContext& context) const;

private:
    LateLibrary m_library{"tallyvane-windows.so"};
};

} // namespace tallyvane::app
