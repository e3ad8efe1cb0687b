import QtQuick
import Tallyvane.Style

/// Drawn around the item that the keyboard is on; the parent's corners are `cornerRadius`.
Rectangle {
    id: root

    required property bool shown
    property double cornerRadius: Theme.radius
    property double gap: 1

    anchors.fill: parent
    anchors.margins: -(gap + border.width)
    radius: cornerRadius + gap + border.width
    color: "transparent"
    border.color: Theme.accent
    border.width: Theme.focusWidth
    visible: shown
}
