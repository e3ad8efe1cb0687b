pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A symbol that can be pressed, without a border; `text` is what it is called aloud.
T.Button {
    id: root

    required property string symbol
    property color ink: Theme.secondaryText

    implicitWidth: Theme.scaled(30)
    implicitHeight: Theme.scaled(30)
    opacity: enabled ? 1 : Theme.disabledOpacity
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

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
