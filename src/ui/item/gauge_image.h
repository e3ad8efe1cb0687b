#pragma once

#include "ui/item/menu_bar_label.h"

#include <QtCore/QByteArray>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainterPath>

#include <vector>

/// The status item's pictures: one ink on a transparent ground.
namespace tallyvane::ui {

/// Areas to fill by the non-zero rule on a square of side `side`; y points down.
struct Drawing {
    struct Area {
        QPainterPath path;
        double opacity = 1;
    };

    double side = 1;
    std::vector<Area> areas;
};

/// Two gauges, top left and bottom right, on either side of a diagonal stroke; a large one for a
/// single value. The sector that is filled, clockwise from the top, is the quota left.
[[nodiscard]] Drawing gaugeDrawing(const GaugeValues& values);

/// `figure`, 0 to 100, in large digits above a bar for each value, for panels that show no text
/// beside an icon. Laid out on the pixel grid of a picture `size` pixels large, at least 16.
[[nodiscard]] Drawing figureDrawing(int figure, const GaugeValues& values, int size);

/// Paints the drawing `size` pixels wide and high.
[[nodiscard]] QImage paint(const Drawing& drawing, int size, const QColor& ink);

/// Writes the drawing as a symbolic SVG icon: fills only, in a colour that GTK panels and Plasma
/// replace by their own.
[[nodiscard]] QByteArray symbolicSvg(const Drawing& drawing);

/// The pixels row by row in the form of the StatusNotifierItem protocol: ARGB, one byte each in
/// that order, not premultiplied.
[[nodiscard]] QByteArray networkPixels(const QImage& image);

} // namespace tallyvane::ui
