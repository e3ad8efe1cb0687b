#pragma once

#include "ui/menubar/menu_bar_label.h"

#include <QtCore/QByteArray>
#include <QtGui/QColor>
#include <QtGui/QImage>

/// The status item's pictures, all in one ink on a transparent ground.
namespace tallyvane::ui {

/// Two gauges either side of a slanted stroke, Codex top left and Claude bottom right, `size`
/// pixels wide and high. A gauge fills clockwise from the top as quota is left.
[[nodiscard]] QImage gaugeImage(const GaugeValues& values, int size, const QColor& ink);

/// For panels that show no text beside a picture: `figure` in large digits above two bars, Codex's
/// above Claude's. `figure` is 0 to 100, `size` 16 or more.
[[nodiscard]] QImage figureImage(int figure, const GaugeValues& values, int size,
                                 const QColor& ink);

/// The drawing of gaugeImage as a symbolic SVG icon: fills alone, in a colour that GTK panels and
/// Plasma replace by their own.
[[nodiscard]] QByteArray symbolicSvg(const GaugeValues& values);

/// The pixels row by row as the StatusNotifierItem protocol wants them: ARGB, one byte each in this
/// order, not premultiplied.
[[nodiscard]] QByteArray networkPixels(const QImage& image);

} // namespace tallyvane::ui
