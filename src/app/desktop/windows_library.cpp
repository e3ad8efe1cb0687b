#include "app/desktop/windows_library.h"

#include <QtCore/QCoreApplication>

namespace tallyvane::app {

std::expected<std::unique_ptr<Windows>, QString>
WindowsLibrary::makeWindows(const WindowsContext& context) const {
    const auto function = m_library.function("tallyvaneMakeWindows");
    if (!function) {
        return std::unexpected(
            QCoreApplication::translate("Notification", "The windows could not be loaded: %1")
                .arg(function.error()));
    }
    return std::unique_ptr<Windows>(
        reinterpret_cast<decltype(&tallyvaneMakeWindows)>(*function)(context));
}

} // namespace tallyvane::app
