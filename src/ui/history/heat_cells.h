#pragma once

#include "ui/history/heatmap_model.h"

#include <QtQuick/QQuickPaintedItem>

namespace tallyvane::ui {

/// Days of the heatmap, in columns of `rows`; the first column is on the right where text begins
/// there. Where there are tokens, an edge sets a cell off from the ground; in high contrast that is
/// the wider the more there are. One item, as one for each day of half a year would take longer to
/// make than all else on the page.
class HeatCells : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<tallyvane::ui::HeatmapCell> cells MEMBER m_cells NOTIFY changed)
    Q_PROPERTY(int rows MEMBER m_rows NOTIFY changed)      // at least 1
    Q_PROPERTY(double cell MEMBER m_cell NOTIFY changed)   // its width and height
    Q_PROPERTY(double pitch MEMBER m_pitch NOTIFY changed) // from one to the next
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
    Q_PROPERTY(double contrast MEMBER m_contrast NOTIFY changed) // of an edge and the ground
    Q_PROPERTY(bool hasWideEdges MEMBER m_hasWideEdges NOTIFY changed)
    Q_PROPERTY(bool isRightToLeft MEMBER m_isRightToLeft NOTIFY changed)

public:
    explicit HeatCells(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] int columns() const;
    [[nodiscard]] double edgeWidth(const HeatmapCell& cell) const;
    [[nodiscard]] QImage drawn(const HeatmapCell& cell, double scale) const;

    QList<HeatmapCell> m_cells;
    int m_rows = 1;
    double m_cell = 0;
    double m_pitch = 0;
    QColor m_ground;
    double m_contrast = 1;
    bool m_hasWideEdges = false;
    bool m_isRightToLeft = false;
};

} // namespace tallyvane::ui
