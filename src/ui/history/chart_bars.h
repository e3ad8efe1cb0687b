#pragma once

#include "ui/history/history_model.h"

#include <QtQuick/QQuickPaintedItem>

namespace tallyvane::ui {

/// The bars of the history chart; the first is on the right where text begins there. One item, as
/// one for each segment would take longer to make than all else on the page.
class ChartBars : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<tallyvane::ui::ChartSegment> segments MEMBER m_segments NOTIFY changed)
    Q_PROPERTY(double barWidth MEMBER m_barWidth NOTIFY changed)
    Q_PROPERTY(double dimmedOpacity MEMBER m_dimmedOpacity NOTIFY changed)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY changed)
    Q_PROPERTY(QColor hatching MEMBER m_hatching NOTIFY changed)
    Q_PROPERTY(bool isRightToLeft MEMBER m_isRightToLeft NOTIFY changed)

public:
    explicit ChartBars(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    /// In whole pixels, of which there are `scale` in a unit of length.
    [[nodiscard]] QRectF place(const ChartSegment& segment, double scale) const;

    QList<ChartSegment> m_segments;
    double m_barWidth = 0;
    double m_dimmedOpacity = 1;
    QColor m_outline = Qt::transparent;
    QColor m_hatching = Qt::transparent;
    bool m_isRightToLeft = false;
};

} // namespace tallyvane::ui
