import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// Two items side by side, or one above the other if they do not fit.
GridLayout {
    columns: children[0].implicitWidth + children[1].implicitWidth + columnSpacing > width ? 1 : 2
    columnSpacing: Theme.largeSpacing
    rowSpacing: Theme.spacing
}
