#pragma once

#include "app/composition.h"
#include "app/desktop/status_area.h"
#include "app/desktop/windows_library.h"
#include "app/start_command.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/dbus_application.h"

namespace tallyvane::app {

/// The program on the desktop: one model, the status item, and the windows when they are wanted.
/// Outlives the event loop.
class DesktopProgram : public QObject {
    Q_OBJECT

public:
    explicit DesktopProgram(const Environment& environment);

    /// Nothing: the program is up, and the event loop is to run. Else it is not, and how to end.
    [[nodiscard]] std::optional<ExitCode> start(StartMode mode);

private:
    void openMainWindow(const QString& activationToken);
    [[nodiscard]] WindowsContext windowsContext();
    [[nodiscard]] Windows* windows();

    Environment m_environment;
    Composition m_composition;
    platform::AutostartEntry m_loginItem;
    platform::SystemAppearance m_appearance;
    StatusArea m_statusArea;
    platform::DBusApplication m_application;
    WindowsLibrary m_windowsLibrary;
    std::unique_ptr<Windows> m_windows;
};

} // namespace tallyvane::app
