import QtQuick
import Tallyvane.Style

/// A bar that shows what is left of one quota window.
Capsule {
    id: root

    required property double fraction
    required property color fill

    implicitHeight: 7
    color: Theme.quotaTrack

    Capsule {
        objectName: "fill"
        anchors.left: parent.left
        width: Math.max(parent.width * root.fraction, height)
        height: parent.height
        visible: root.fraction > 0
        color: root.fill

        Behavior on width {
            enabled: root.Window.active && Theme.isAnimated
            NumberAnimation {
                duration: 300
                easing.type: Easing.OutCubic
            }
        }
    }
}
