pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// Content that opens `destination` in the desktop's browser; it looks like a plain row until the
/// pointer or the keyboard is on it.
T.AbstractButton {
    id: root

    required property url destination

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    onClicked: Qt.openUrlExternally(destination)

    Accessible.role: Accessible.Link
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.down ? Theme.control : root.hovered ? Theme.rowHovered : "transparent"

        FocusRing {
            gap: 0
            shown: root.visualFocus
        }
    }
}
