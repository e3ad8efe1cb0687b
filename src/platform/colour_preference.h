#pragma once

namespace tallyvane::platform {

/// The colours that the desktop prefers.
enum class ColourPreference { none, dark, light };

} // namespace tallyvane::platform
