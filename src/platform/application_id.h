#pragma once

#include <QtCore/QLatin1StringView>

namespace tallyvane::platform {

/// The one name by which the desktop knows the program: its name on the session bus, and that of
/// its desktop entry and its icon.
inline constexpr QLatin1StringView applicationId{"org.corvelle.Tallyvane"};

} // namespace tallyvane::platform
