#include "ui/history/heat_cells.h"

#include "ui/style/colour.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

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

void HeatCells::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    int index = -1;
    for (const HeatmapCell& cell : m_cells) {
        ++index;
        if (cell.colour.alpha() == 0) {
            continue;
        }
        const int column = index / m_rows;
        const QPointF corner((m_isRightToLeft ? columns() - 1 - column : column) * m_pitch,
                             index % m_rows * m_pitch);
        const double edge = edgeWidth(cell);
        const double half = edge / 2; // a pen paints on both sides of a line
        const QColor opaque = cell.colour.toRgb().rgb();
        painter->setPen(
            edge == 0
                ? Qt::NoPen
                : QPen(cell.isFilled ? readable(opaque, m_ground, m_contrast) : cell.colour, edge));
        painter->setBrush(cell.isFilled ? QBrush(cell.colour) : Qt::NoBrush);
        const double radius = m_cell / 4.5 - half;
        painter->drawRoundedRect(
            QRectF(corner, QSizeF(m_cell, m_cell)).adjusted(half, half, -half, -half), radius,
            radius);
    }
}

} // namespace tallyvane::ui

#include "moc_heat_cells.cpp"
