#include "ui/history/heat_cells.h"

#include "ui/style/colour.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tallyvane::ui {

HeatCells::HeatCells(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &HeatCells::changed, this, [this] {
        setImplicitSize(columns() * m_pitch - (m_pitch - m_cell),
                        m_rows * m_pitch - (m_pitch - m_cell));
        update();
    });
}

int HeatCells::columns() const {
    return (static_cast<int>(m_cells.size()) + m_rows - 1) / m_rows;
}

double HeatCells::edgeWidth(const HeatmapCell& cell) const {
    if (m_hasWideEdges && cell.isFilled) {
        return std::max(1.0, std::round(cell.level * m_cell / 11));
    }
    return cell.level > 0 || !cell.isFilled ? 1 : 0;
}

QImage HeatCells::drawn(const HeatmapCell& cell, double scale) const {
    const int pixels = std::max(1, static_cast<int>(m_cell * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    const double edge = edgeWidth(cell);
    const double half = edge / 2; // a pen paints on both sides of a line
    const double side = pixels / scale - edge;
    const double radius = m_cell / 4.5 - half;
    const QColor opaque = cell.colour.toRgb().rgb();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        edge == 0
            ? Qt::NoPen
            : QPen(cell.isFilled ? readable(opaque, m_ground, m_contrast) : cell.colour, edge));
    painter.setBrush(cell.isFilled ? QBrush(cell.colour) : Qt::NoBrush);
    painter.drawRoundedRect(QRectF(half, half, side, side), radius, radius);
    return image;
}

void HeatCells::paint(QPainter* painter) {
    const double scale = painter->deviceTransform().m11();
    const auto wholePixels = [scale](double length) { return std::floor(length * scale) / scale; };
    std::vector<std::pair<HeatmapCell, QImage>> looks; // a handful, each drawn once
    int index = -1;
    for (const HeatmapCell& cell : m_cells) {
        ++index;
        if (cell.colour.alpha() == 0) {
            continue;
        }
        auto look = std::ranges::find(looks, cell, &std::pair<HeatmapCell, QImage>::first);
        if (look == looks.end()) {
            look = looks.emplace(look, cell, drawn(cell, scale));
        }
        const int column = index / m_rows;
        painter->drawImage(
            QPointF(wholePixels((m_isRightToLeft ? columns() - 1 - column : column) * m_pitch),
                    wholePixels(index % m_rows * m_pitch)),
            look->second);
    }
}

} // namespace tallyvane::ui

#include "moc_heat_cells.cpp"
