#include "app/desktop/windows_library.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QPluginLoader>

namespace tallyvane::app {

std::expected<std::unique_ptr<Windows>, QString> loadWindows(const WindowsContext& context) {
    const QString program = QCoreApplication::applicationDirPath();
    QString path = program + QStringLiteral("/tallyvane-windows.so");
    if (!QFile::exists(path)) {
        path = program +
               QStringLiteral("/" TALLYVANE_LIB_FROM_LIBEXEC "/tallyvane/tallyvane-windows.so");
    }
    QPluginLoader loader(path); // never unloaded: QML types stay registered
    auto* plugin = qobject_cast<WindowsPlugin*>(loader.instance());
    if (plugin == nullptr) {
        return std::unexpected(
            QStringLiteral("The windows could not be loaded: %1").arg(loader.errorString()));
    }
    return plugin->makeWindows(context);
}

} // namespace tallyvane::app
