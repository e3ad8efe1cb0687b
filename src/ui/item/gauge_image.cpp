#include "ui/item/gauge_image.h"

#include <QtCore/QtEndian>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPainterPathStroker>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tallyvane::ui {

namespace {

constexpr double grid = 22; // the side of the square that the gauges are drawn on

/// The point of a circle at `turn` full turns clockwise from the top.
QPointF onCircle(QPointF centre, double radius, double turn) {
    const double angle = (turn * 360 - 90) * std::numbers::pi / 180;
    return centre + radius * QPointF(std::cos(angle), std::sin(angle));
}

QPainterPath strokeOutline(const QPainterPath& line, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(line);
}

QPainterPath slantedStroke() {
    QPainterPath line(QPointF(5, 17));
    line.lineTo(17, 5);
    return strokeOutline(line, 2.1);
}

/// Lengths are multiplied by `scale`.
QPainterPath ring(QPointF centre, double scale) {
    const double radius = 3.7 * scale;
    constexpr int segments = 64;
    QPainterPath circle(onCircle(centre, radius, 0));
    for (int i = 1; i <= segments; ++i) {
        circle.lineTo(onCircle(centre, radius, static_cast<double>(i) / segments));
    }
    circle.closeSubpath();
    return strokeOutline(circle, 0.8 * scale);
}

QPainterPath sector(QPointF centre, double value, double scale) {
    const double radius = 3.05 * scale;
    constexpr double leastFraction = 0.001;
    const double fraction = std::min(value / 100, 1.0);
    if (!(fraction > leastFraction)) {
        return {};
    }
    const int steps = std::max(static_cast<int>(fraction * 360), 2);
    QPainterPath path(centre);
    for (int k = 0; k <= steps; ++k) {
        path.lineTo(onCircle(centre, radius, fraction * k / steps));
    }
    path.closeSubpath();
    return path;
}

/// Which strokes each digit has: top, top right, bottom right, bottom, bottom left, top left,
/// middle.
constexpr std::array<const char*, 10> digitStrokes{"1111110", "0110000", "1101101", "1111001",
                                                   "0110011", "1011011", "1011111", "1110000",
                                                   "1111111", "1111011"};

/// A digit of straight strokes on whole pixels: sharp at the smallest size, and needs no font.
QPainterPath digit(int number, const QRectF& box, double stroke) {
    const double half = stroke / 2;
    const QRectF line = box.adjusted(half, half, -half, -half);
    const double middle = std::round(line.center().y() - half) + half;
    const QPointF middleLeft(line.left(), middle);
    const QPointF middleRight(line.right(), middle);
    const std::array strokes{
        QLineF(line.topLeft(), line.topRight()), QLineF(line.topRight(), middleRight),
        QLineF(middleRight, line.bottomRight()), QLineF(line.bottomRight(), line.bottomLeft()),
        QLineF(line.bottomLeft(), middleLeft),   QLineF(middleLeft, line.topLeft()),
        QLineF(middleLeft, middleRight),
    };
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        if (digitStrokes[static_cast<std::size_t>(number)][i] == '1') {
            const QRectF bare = QRectF(strokes[i].p1(), strokes[i].p2()).normalized();
            path.addRoundedRect(bare.adjusted(-half, -half, half, half), half / 2, half / 2);
        }
    }
    return path;
}

} // namespace

Drawing gaugeDrawing(const GaugeValues& values) {
    constexpr std::array centres{QPointF(6.6, 6.6), QPointF(15.4, 15.4)};
    Drawing drawing{.side = grid};
    const auto add = [&drawing](QPointF centre, std::optional<double> value, double scale) {
        drawing.areas.push_back({ring(centre, scale)});
        drawing.areas.push_back({sector(centre, value.value_or(0), scale)});
    };
    if (values.size() == 1) {
        constexpr double large = 2.2;
        add(QPointF(grid / 2, grid / 2), values.front(), large);
        return drawing;
    }
    drawing.areas.push_back({slantedStroke()});
    for (std::size_t i = 0; i < std::min(values.size(), centres.size()); ++i) {
        add(centres[i], values[i], 1);
    }
    return drawing;
}

Drawing figureDrawing(int figure, const GaugeValues& values, int size) {
    const int stroke = std::max(2, qRound(size / 11.0));
    const int gap = size / 11;
    const int thin = std::max(1, size / 22);
    const int bars = static_cast<int>(values.size());
    const int digitHeight = size - gap - thin - bars * (stroke + thin) + thin;
    const int digitWidth = qRound(size * 0.36);

    const QString text = QString::number(figure);
    const auto widthOf = [&](QChar character) { return character == u'1' ? stroke : digitWidth; };
    int textWidth = gap * static_cast<int>(text.size() - 1);
    for (const QChar character : text) {
        textWidth += widthOf(character);
    }
    Drawing drawing{.side = static_cast<double>(size)};
    int left = (size - textWidth + 1) / 2;
    for (const QChar character : text) {
        const QRectF box(left, thin, widthOf(character), digitHeight);
        drawing.areas.push_back({digit(character.digitValue(), box, stroke)});
        left += widthOf(character) + gap;
    }

    constexpr double faint = 0.35;
    int top = thin + digitHeight + gap;
    for (const std::optional<double>& value : values) {
        const double filled = size * value.value_or(0) / 100;
        QPainterPath bar;
        bar.addRect(0, top, filled, stroke);
        QPainterPath rest;
        rest.addRect(filled, top, size - filled, stroke);
        drawing.areas.push_back({bar});
        drawing.areas.push_back({rest, faint});
        top += stroke + thin;
    }
    return drawing;
}

QImage paint(const Drawing& drawing, int size, const QColor& ink) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / drawing.side, size / drawing.side);
    for (const auto& [path, opacity] : drawing.areas) {
        painter.setOpacity(opacity);
        painter.fillPath(path, ink);
    }
    return image;
}

QByteArray symbolicSvg(const Drawing& drawing) {
    const QByteArray side = QByteArray::number(drawing.side);
    QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\" "
                     "viewBox=\"0 0 " +
                     side + ' ' + side +
                     "\">\n"
                     "<style id=\"current-color-scheme\" type=\"text/css\">"
                     ".ColorScheme-Text{color:#232629}</style>\n";
    const auto point = [](const QPainterPath::Element& element) {
        return QByteArray::number(element.x, 'f', 3) + ' ' + QByteArray::number(element.y, 'f', 3);
    };
    for (const auto& [area, opacity] : drawing.areas) {
        if (area.isEmpty()) {
            continue;
        }
        svg += "<path class=\"ColorScheme-Text\" fill=\"currentColor\" fill-opacity=\"" +
               QByteArray::number(opacity) + "\" d=\"";
        for (int i = 0; i < area.elementCount(); ++i) {
            const QPainterPath::Element element = area.elementAt(i);
            switch (element.type) {
            case QPainterPath::MoveToElement:
                svg += 'M';
                break;
            case QPainterPath::LineToElement:
                svg += 'L';
                break;
            case QPainterPath::CurveToElement:
                svg += 'C';
                break;
            case QPainterPath::CurveToDataElement:
                svg += ' ';
                break;
            }
            svg += point(element);
        }
        svg += "Z\"/>\n";
    }
    return svg + "</svg>\n";
}

QByteArray networkPixels(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray bytes(qsizetype{plain.width()} * plain.height() * 4, Qt::Uninitialized);
    auto* to = bytes.data();
    for (int y = 0; y < plain.height(); ++y) {
        qToBigEndian<quint32>(plain.constScanLine(y), plain.width(), to);
        to += qsizetype{plain.width()} * 4;
    }
    return bytes;
}

} // namespace tallyvane::ui
