#include "ui/style/colour.h"

#include <algorithm>
#include <cmath>

namespace tallyvane::ui {

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor readable(const QColor& colour, const QColor& ground, double least) {
    constexpr int steps = 20;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const QColor end = contrast(black, ground) > contrast(white, ground) ? black : white;
    QColor moved = colour;
    for (int step = 1; step <= steps && contrast(moved, ground) < least; ++step) {
        const float part = static_cast<float>(step) / steps;
        const auto mix = [part](float from, float to) { return from + (to - from) * part; };
        moved = QColor::fromRgbF(mix(colour.redF(), end.redF()), mix(colour.greenF(), end.greenF()),
                                 mix(colour.blueF(), end.blueF()));
    }
    return moved;
}

} // namespace tallyvane::ui
