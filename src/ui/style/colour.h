#pragma once

#include "model/quota_display.h"

#include <QtGui/QColor>

namespace tallyvane::ui {

/// The toolkit's form of one of the model's colours.
[[nodiscard]] inline QColor toColour(const model::Colour& colour, double opacity = 1) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue), static_cast<float>(opacity));
}

} // namespace tallyvane::ui
