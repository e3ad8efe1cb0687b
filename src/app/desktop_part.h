#pragma once

#include <QtCore/QByteArrayList>

#include <optional>

namespace tallyvane::app {

/// The paths at which the desktop part may be installed: beside this program, or in libexec.
[[nodiscard]] QByteArrayList desktopProgramPlaces();

/// The installed desktop part; nothing if there is none.
[[nodiscard]] std::optional<QByteArray> desktopProgram();

} // namespace tallyvane::app
