#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace tallyvane::ui {

/// Draws diagonal lines, which tell a surface from one of another colour.
void hatch(QPainter& painter, const QRectF& area, const QColor& colour);

/// A shape in one colour. Nothing is painted of what is less than a pixel wide or high.
class PaintedShape : public QQuickPaintedItem {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor color MEMBER m_colour NOTIFY colorChanged)

public:
    explicit PaintedShape(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void colorChanged();

protected:
    [[nodiscard]] QColor colour() const { return m_colour; }
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    QColor m_colour;
};

// The namespace below is for qmllint, which otherwise does not find the base.

/// A bar with round ends. Unlike a Rectangle's, they stay round at fractional scale factors.
class Capsule : public tallyvane::ui::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

public:
    using PaintedShape::PaintedShape;

    void paint(QPainter* painter) override;
};

/// An area that is hatched.
class Hatching : public tallyvane::ui::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

public:
    using PaintedShape::PaintedShape;

    void paint(QPainter* painter) override;
};

} // namespace tallyvane::ui
