#pragma once

namespace tallyvane::platform {

/// What the desktop asks of its programs.
enum class ColourScheme { noPreference, dark, light };

} // namespace tallyvane::platform
