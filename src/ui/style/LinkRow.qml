pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// Content that opens `destination` in the desktop's browser; it looks like a plain row until the
/// pointer or the keyboard is on it.
BaseButton {
    id: root

    required property url destination

    onClicked: Qt.openUrlExternally(destination)

    Accessible.role: Accessible.Link

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
