import QtQuick
import Tallyvane.Style

/// A bar that shows what is left of one quota window.
Capsule {
    id: root

    required property double fraction
    required property color fill

    implicitHeight: 7
    color: Theme.quotaTrack

    Item {
        objectName: "fill"
        anchors.left: parent.left
        width: parent.width * root.fraction
        height: parent.height
        clip: true

        Capsule {
            anchors.left: parent.left
            width: Math.max(parent.width, height) // what is narrower than its ends shows a part of one
            height: parent.height
            color: root.fill
        }
        Behavior on width {
            enabled: root.Window.active && Theme.isAnimated
            NumberAnimation {
                duration: 300
                easing.type: Easing.OutCubic
            }
        }
    }
}
