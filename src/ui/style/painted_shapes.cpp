#include "ui/style/painted_shapes.h"

#include <QtGui/QPainter>
#include <QtQuick/QSGNode>

namespace tallyvane::ui {

void hatch(QPainter& painter, const QRectF& area, const QColor& colour) {
    constexpr double distance = 5;
    painter.save();
    painter.setClipRect(area);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.2));
    for (double x = distance / 2; x < area.width() + area.height(); x += distance) {
        painter.drawLine(area.topLeft() + QPointF(x, 0),
                         area.bottomLeft() + QPointF(x - area.height(), 0));
    }
    painter.restore();
}

PaintedShape::PaintedShape(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &PaintedShape::colorChanged, this, [this] { update(); });
}

QSGNode* PaintedShape::updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) {
    // Qt would paint on an image without pixels and warn of that, even where the item is hidden.
    if (width() < 1 || height() < 1) {
        delete node;
        return nullptr;
    }
    return QQuickPaintedItem::updatePaintNode(node, data);
}

void Capsule::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour());
    painter->drawRoundedRect(boundingRect(), height() / 2, height() / 2);
}

void Hatching::paint(QPainter* painter) {
    hatch(*painter, boundingRect(), colour());
}

} // namespace tallyvane::ui

#include "moc_painted_shapes.cpp"
