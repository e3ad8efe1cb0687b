#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace tallyvane::ui {

/// Diagonal lines, which tell a surface from one of another colour.
class Hatching : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_colour NOTIFY colorChanged)

public:
    explicit Hatching(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_colour;
};

} // namespace tallyvane::ui
