#pragma once

#include "app/desktop/windows.h"
#include "model/file_descriptor.h"

#include <expected>

namespace tallyvane::app {

/// The windows library beside this program. The file is opened at start-up: an update may replace
/// it while the program runs, and another version's windows would not be compatible.
class WindowsLibrary {
public:
    WindowsLibrary();

    /// Loads the library permanently. The error is a text for the user.
    [[nodiscard]] std::expected<std::unique_ptr<Windows>, QString>
    makeWindows(const WindowsContext& context) const;

private:
    std::string m_path;
    model::FileDescriptor m_file;
};

} // namespace tallyvane::app
