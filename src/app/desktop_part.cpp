#include "app/desktop_part.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <unistd.h>

namespace tallyvane::app {

QByteArrayList partPlaces(const char* file) {
    const QByteArray folder = QFile::encodeName(QCoreApplication::applicationDirPath());
    return {folder + '/' + file, folder + "/" TALLYVANE_LIBEXEC_FROM_BIN "/" + file};
}

QByteArrayList desktopProgramPlaces() {
    return partPlaces("tallyvane-desktop");
}

std::optional<QByteArray> desktopProgram() {
    for (const QByteArray& place : desktopProgramPlaces()) {
        if (::access(place.constData(), X_OK) == 0) {
            return place;
        }
    }
    return std::nullopt;
}

} // namespace tallyvane::app
