#pragma once

#include <QtCore/QByteArrayList>

#include <optional>

namespace tallyvane::app {

/// The paths at which a file of the program may be installed: beside this program, or in libexec.
[[nodiscard]] QByteArrayList partPlaces(const char* file);

/// Those of the desktop part.
[[nodiscard]] QByteArrayList desktopProgramPlaces();

/// The installed desktop part; nothing if there is none.
[[nodiscard]] std::optional<QByteArray> desktopProgram();

} // namespace tallyvane::app
