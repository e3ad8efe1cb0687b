pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// A check box and its label.
BaseToggle {
    id: root

    spacing: Theme.spacing

    indicator: Rectangle {
        width: Theme.scaled(18)
        height: width
        radius: Theme.smallRadius - 1
        color: root.checked ? Theme.accentFill : root.hovered ? Theme.controlHovered : Theme.control
        border.width: root.checked && !Theme.isHighContrast ? 0 : 1
        border.color: Theme.tertiaryText

        SymbolImage {
            anchors.centerIn: parent
            visible: root.checked
            name: "checkmark"
            size: Theme.scaled(14)
            color: Theme.whiteText
        }
        FocusRing {
            cornerRadius: parent.radius
            shown: root.visualFocus
        }
    }
}
