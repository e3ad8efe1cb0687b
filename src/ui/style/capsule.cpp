#include "ui/style/capsule.h"

#include <QtGui/QPainter>

namespace tallyvane::ui {

Capsule::Capsule(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &Capsule::colorChanged, this, [this] { update(); });
}

void Capsule::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_colour);
    painter->drawRoundedRect(boundingRect(), height() / 2, height() / 2);
}

} // namespace tallyvane::ui

#include "moc_capsule.cpp"
