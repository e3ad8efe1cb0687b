import QtQuick
import Tallyvane.Style

/// A bar that shows what is left of one quota window.
Capsule {
    id: root

    required property double fraction
    required property color fill
    /// Whether little is left, shown by more than the colour in high contrast.
    required property bool isLow
    /// Where the fill would end at an even pace; negative if that is unknown.
    required property double evenFraction
    /// Shown while the pointer is here; may be empty.
    required property string pace
    readonly property bool isExplained: pointer.hovered && pace !== ""
    /// How far above and below the bar the pointer is taken to be on it.
    readonly property double reach: 11

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
            visible: Theme.isHighContrast && root.isLow
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
    Rectangle {
        objectName: "evenMark"

        readonly property double centre: (Theme.isRightToLeft ? 1 - root.evenFraction : root.evenFraction) * root.width
        readonly property double overhang: 3

        visible: root.evenFraction >= 0
        x: Math.round(Math.max(0, Math.min(centre - width / 2, root.width - width)))
        y: -overhang
        width: Theme.isHighContrast ? 2 : 1
        height: root.height + 2 * overhang
        color: Theme.text
    }
    Item {
        anchors.fill: parent
        anchors.topMargin: -root.reach
        anchors.bottomMargin: -root.reach

        HoverHandler {
            id: pointer
        }
        HelpTip {
            visible: root.isExplained
            text: root.pace
        }
    }
}
