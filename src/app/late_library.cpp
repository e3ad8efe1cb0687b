#include "app/late_library.h"

#include "app/desktop_part.h"
#include "model/foreign_text.h"

#include <dlfcn.h>

namespace tallyvane::app {

LateLibrary::LateLibrary(const char* file) {
    for (const QByteArray& place : partPlaces(file)) {
        if (m_file.get() < 0) {
            m_path = place.toStdString();
            m_file = model::FileDescriptor(m_path, O_RDONLY);
        }
    }
}

std::expected<void*, QString> LateLibrary::function(const char* name) const {
    const std::string path =
        m_file.get() < 0 ? m_path : "/proc/self/fd/" + std::to_string(m_file.get());
    // Never unloaded, because its types stay registered and its threads may go on.
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* function = library == nullptr ? nullptr : ::dlsym(library, name);
    if (function == nullptr) {
        return std::unexpected(model::readableText(QString::fromLocal8Bit(::dlerror())));
    }
    return function;
}

} // namespace tallyvane::app
