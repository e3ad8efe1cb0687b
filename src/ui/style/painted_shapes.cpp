#include "ui/style/painted_shapes.h"

#include <QtGui/QPainter>

namespace tallyvane::ui {

PaintedShape::PaintedShape(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &PaintedShape::colorChanged, this, [this] { update(); });
}

void Capsule::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour());
    painter->drawRoundedRect(boundingRect(), height() / 2, height() / 2);
}

void Hatching::paint(QPainter* painter) {
    constexpr double distance = 5;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour(), 1.2));
    for (double x = distance / 2; x < width() + height(); x += distance) {
        painter->drawLine(QPointF(x, 0), QPointF(x - height(), height()));
    }
}

} // namespace tallyvane::ui

#include "moc_painted_shapes.cpp"
