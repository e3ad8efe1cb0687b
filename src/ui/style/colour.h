#pragma once

#include "model/quota_display.h"

#include <QtGui/QColor>

namespace tallyvane::ui {

/// The toolkit's form of one of the model's colours.
[[nodiscard]] inline QColor toColour(const model::Colour& colour, double opacity = 1) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue), static_cast<float>(opacity));
}

/// How light an opaque colour is, 0 (black) to 1 (white): "relative luminance" of WCAG 2.1.
[[nodiscard]] double luminance(const QColor& colour);

/// How well one opaque colour is seen on another, 1 (not at all) to 21: "contrast ratio" of WCAG
/// 2.1, which asks 4.5 of text and 3 of symbols.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

} // namespace tallyvane::ui
