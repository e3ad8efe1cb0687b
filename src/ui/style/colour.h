#pragma once

#include "model/quota_display.h"

#include <QtGui/QColor>

namespace tallyvane::ui {

/// Converts one of the model's colours to the toolkit's.
[[nodiscard]] inline QColor toColour(const model::Colour& colour, double opacity = 1) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue), static_cast<float>(opacity));
}

/// The relative luminance of an opaque colour, 0 (black) to 1 (white), as WCAG 2.1 defines it.
[[nodiscard]] double luminance(const QColor& colour);

/// The contrast ratio of two opaque colours, 1 to 21, as WCAG 2.1 defines it; it requires 4.5 for
/// text and 3 for symbols.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// `colour`, moved towards black or white, whichever differs more from `ground`, until their
/// contrast is at least `least` or it has arrived.
[[nodiscard]] QColor readable(const QColor& colour, const QColor& ground, double least);

} // namespace tallyvane::ui
