pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// A borderless button with a symbol; screen readers read its `text`.
BaseButton {
    id: root

    required property string symbol
    property color ink: Theme.secondaryText

    implicitWidth: Theme.scaled(30)
    implicitHeight: Theme.scaled(30)
    opacity: enabled ? 1 : Theme.disabledOpacity

    contentItem: Item {
        SymbolImage {
            anchors.centerIn: parent
            name: root.symbol
            size: Theme.symbolSize
            color: root.ink
        }
    }
    background: Rectangle {
        radius: Theme.radius
        color: root.down ? Theme.controlPressed : root.hovered ? Theme.controlHovered : "transparent"

        FocusRing {
            shown: root.visualFocus
        }
    }
}
