#pragma once

#include "ui/item/menu_bar_label.h"

#include <QtCore/QByteArray>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainterPath>

#include <vector>

/// The status item's pictures, all in one ink on a transparent ground.
namespace tallyvane::ui {

/// Areas to fill with the non-zero rule, on a square whose sides are `side` long; y points down.
struct Drawing {
    struct Area {
        QPainterPath path;
        double opacity = 1;
    };

    double side = 1;
    std::vector<Area> areas;
};

/// Two gauges either side of a slanted stroke, Codex top left and Claude bottom right. A gauge
/// fills clockwise from the top as quota is left.
[[nodiscard]] Drawing gaugeDrawing(const GaugeValues& values);

/// For panels that show no text beside a picture: `figure` in large digits above two bars, Codex's
/// above Claude's. `figure` is 0 to 100. Sharpest when painted `size` pixels large, 16 or more.
[[nodiscard]] Drawing figureDrawing(int figure, const GaugeValues& values, int size);

/// `size` pixels wide and high.
[[nodiscard]] QImage paint(const Drawing& drawing, int size, const QColor& ink);

/// A symbolic SVG icon: fills alone, in a colour that GTK panels and Plasma replace by their own.
[[nodiscard]] QByteArray symbolicSvg(const Drawing& drawing);

/// The pixels row by row as the StatusNotifierItem protocol wants them: ARGB, one byte each in this
/// order, not premultiplied.
[[nodiscard]] QByteArray networkPixels(const QImage& image);

} // namespace tallyvane::ui
