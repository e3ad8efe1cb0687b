#include "ui/style/hatching.h"

#include <QtGui/QPainter>

namespace tallyvane::ui {

Hatching::Hatching(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &Hatching::colorChanged, this, [this] { update(); });
}

void Hatching::paint(QPainter* painter) {
    constexpr double distance = 5;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_colour, 1.2));
    for (double x = distance / 2; x < width() + height(); x += distance) {
        painter->drawLine(QPointF(x, 0), QPointF(x - height(), height()));
    }
}

} // namespace tallyvane::ui

#include "moc_hatching.cpp"
