#include "app/desktop/windows_library.h"

#include "model/foreign_text.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <dlfcn.h>

namespace tallyvane::app {

WindowsLibrary::WindowsLibrary()
    : m_path(QFile::encodeName(QCoreApplication::applicationDirPath() +
                               QStringLiteral("/tallyvane-windows.so"))
                 .toStdString()),
      m_file(m_path, O_RDONLY) {}

std::expected<std::unique_ptr<Windows>, QString>
WindowsLibrary::makeWindows(const WindowsContext& context) const {
    const std::string path =
        m_file.get() < 0 ? m_path : "/proc/self/fd/" + std::to_string(m_file.get());
    // Never unloaded, because QML types stay registered.
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* function = library == nullptr ? nullptr : ::dlsym(library, "tallyvaneMakeWindows");
    if (function == nullptr) {
        return std::unexpected(
            QCoreApplication::translate("Notification", "The windows could not be loaded: %1")
                .arg(model::readableText(QString::fromLocal8Bit(::dlerror()))));
    }
    return std::unique_ptr<Windows>(
        reinterpret_cast<decltype(&tallyvaneMakeWindows)>(function)(context));
}

} // namespace tallyvane::app
