import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// Two items side by side, or one above the other if they do not fit. Their implicit widths must not
/// depend on which it is.
GridLayout {
    // Side by side until it has a width: most stay so, and are then laid out only once.
    columns: width > 0 && children[0].implicitWidth + children[1].implicitWidth + columnSpacing > width ? 1 : 2
    columnSpacing: Theme.largeSpacing
    rowSpacing: Theme.spacing
}
