#include "ui/history/chart_bars.h"

#include "ui/style/painted_shapes.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace tallyvane::ui {

ChartBars::ChartBars(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &ChartBars::changed, this, [this] { update(); });
}

QRectF ChartBars::place(const ChartSegment& segment, double scale) const {
    const auto snapped = [scale](double length) { return std::round(length * scale) / scale; };
    const double centre = (m_isRightToLeft ? 1 - segment.centre : segment.centre) * width();
    const double bottom = segment.base > 0 ? (1 - segment.base) * height() : height() - 1;
    const double top = std::min((1 - segment.base - segment.extent) * height(), bottom - 1);
    return {snapped(centre - m_barWidth / 2), snapped(top), snapped(m_barWidth),
            snapped(bottom) - snapped(top)};
}

void ChartBars::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    for (const ChartSegment& segment : m_segments) {
        if (segment.extent == 0) {
            continue;
        }
        const QRectF place = this->place(segment, painter->deviceTransform().m11());
        painter->setOpacity(segment.isDimmed ? m_dimmedOpacity : 1);
        painter->setPen(Qt::NoPen);
        painter->setBrush(segment.colour);
        const double radius = std::min({3.0, place.width() / 4, place.height() / 2});
        painter->drawRoundedRect(place, radius, radius);
        if (segment.isHatched && m_hatching.alpha() > 0) {
            hatch(*painter, place.adjusted(1, 1, -1, -1), m_hatching);
        }
        painter->setPen(m_outline);
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    }
}

} // namespace tallyvane::ui

#include "moc_chart_bars.cpp"
