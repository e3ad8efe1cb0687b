#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace tallyvane::ui {

/// A bar with round ends. Unlike a Rectangle's, they stay round at fractional scale factors.
class Capsule : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_colour NOTIFY colorChanged)

public:
    explicit Capsule(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_colour;
};

} // namespace tallyvane::ui
