#include "ui/style/symbol_image.h"

#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace tallyvane::ui {

SymbolImage::SymbolImage(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &SymbolImage::changed, this, [this] {
        setImplicitSize(m_size, m_size);
        update();
    });
}

void SymbolImage::paint(QPainter* painter) {
    if (m_name.isEmpty()) {
        return;
    }
    QFile file(QStringLiteral(":/Tallyvane/Style/symbols/%1.svg").arg(m_name));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("no symbol %s", qUtf8Printable(m_name));
        return;
    }
    QSvgRenderer drawing(file.readAll().replace("currentColor", m_colour.name().toLatin1()));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(m_colour.alphaF());
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(painter, boundingRect());
}

} // namespace tallyvane::ui

#include "moc_symbol_image.cpp"
