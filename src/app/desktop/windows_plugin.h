#pragma once

#include "app/desktop/windows.h"

namespace tallyvane::app {

/// What the library of the windows gives to the program that loads it.
class QuickWindowsPlugin final : public QObject, public WindowsPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.corvelle.Tallyvane.WindowsPlugin")
    Q_INTERFACES(tallyvane::app::WindowsPlugin)

public:
    [[nodiscard]] std::unique_ptr<Windows> makeWindows(const WindowsContext& context) override;
};

} // namespace tallyvane::app
