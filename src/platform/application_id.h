#pragma once

#include <QtCore/QLatin1StringView>

namespace tallyvane::platform {

/// The program's name on the session bus, and the name of its desktop entry and its icon.
inline constexpr QLatin1StringView applicationId{"org.corvelle.Tallyvane"};

} // namespace tallyvane::platform
