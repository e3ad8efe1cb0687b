pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// Content that opens `destination` in the desktop's browser. It looks like a plain row until it
/// has the pointer or the focus.
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
