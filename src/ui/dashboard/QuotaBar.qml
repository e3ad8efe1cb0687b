import QtQuick
import Tallyvane.Style

/// A bar that shows what is left of one quota window.
Capsule {
    id: root

    required property double fraction
    required property color fill
    /// Whether little is left, shown by more than the colour in high contrast.
    required property bool isLow

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
        Hatching {
            anchors.fill: parent
            visible: Theme.isHighContrast && root.isLow && width >= 1
            color: Theme.hatching
        }
        Behavior on width {
            enabled: root.Window.active && Theme.isAnimated
            NumberAnimation {
                duration: 300
                easing.type: Easing.OutCubic
            }
        }
    }
    Rectangle {
        anchors.fill: parent
        visible: Theme.isHighContrast
        radius: height / 2
        color: "transparent"
        border.color: Theme.outline
    }
}
