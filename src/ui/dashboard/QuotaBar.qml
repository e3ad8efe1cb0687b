import QtQuick
import Tallyvane.Style

/// What is left of one quota window.
Rectangle {
    id: root

    required property double fraction
    required property color fill

    implicitHeight: 7
    radius: height / 2
    color: Theme.isDark ? "#2cffffff" : "#16000000"

    Rectangle {
        anchors.left: parent.left
        width: Math.max(parent.width * root.fraction, height)
        height: parent.height
        radius: parent.radius
        visible: root.fraction > 0
        color: root.fill

        Behavior on width {
            enabled: root.Window.active
            NumberAnimation {
                duration: 300
                easing.type: Easing.OutCubic
            }
        }
    }
}
