import QtQuick
import Tallyvane.Style

/// Surrounds its parent, whose corner radius is `cornerRadius`, to show keyboard focus.
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
