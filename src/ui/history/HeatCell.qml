import QtQuick
import Tallyvane.Style

/// A day of the heatmap. Where there are tokens, an edge sets it off from the card; in high contrast
/// that is the wider the more there are.
Rectangle {
    id: root

    required property color colour
    /// 0 for a day without tokens, up to 4.
    required property int level
    /// False for an outline.
    property bool isFilled: true

    height: width
    radius: width / 4.5
    color: isFilled ? colour : "transparent"
    border.width: {
        if (colour.a === 0) {
            return 0;
        }
        if (Theme.isHighContrast && isFilled) {
            return Math.max(1, Math.round(level * width / 11));
        }
        return level > 0 || !isFilled ? 1 : 0;
    }
    border.color: isFilled ? Theme.cellEdge(colour) : colour
}
