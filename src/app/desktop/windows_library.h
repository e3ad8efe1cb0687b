#pragma once

#include "app/desktop/windows.h"
#include "model/file_descriptor.h"

#include <expected>

namespace tallyvane::app {

/// The library of the windows, which lies beside this program. The file is opened at once: an
/// update replaces it while the program runs, and the windows of another version would not fit.
class WindowsLibrary {
public:
    WindowsLibrary();

    /// Loads it, for good. The error is a text for the user.
    [[nodiscard]] std::expected<std::unique_ptr<Windows>, QString>
    makeWindows(const WindowsContext& context) const;

private:
    std::string m_path;
    model::FileDescriptor m_file;
};

} // namespace tallyvane::app
