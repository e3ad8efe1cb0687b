#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace tallyvane::ui {

/// One of the drawings in symbols/, in one colour. Its implicit width and height are `size`.
class SymbolImage : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_colour NOTIFY changed)
    Q_PROPERTY(double size MEMBER m_size NOTIFY changed)

public:
    explicit SymbolImage(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QString m_name; ///< of a file in symbols/, without its suffix; nothing is drawn when empty
    QColor m_colour = Qt::black;
    double m_size = 0; ///< pixels
};

} // namespace tallyvane::ui
