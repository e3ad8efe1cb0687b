#pragma once

namespace tallyvane::model {

/// What a window is painted in, after the user's appearance and the desktop's preference.
enum class ColourScheme { light, dark };

} // namespace tallyvane::model
