pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// A label and, after it, an on/off switch.
BaseToggle {
    id: root

    readonly property double inset: 2

    isIndicatorLast: true
    spacing: Theme.largeSpacing

    indicator: Rectangle {
        width: 40
        height: 24
        radius: height / 2
        color: root.checked ? Theme.accentFill : Theme.switchOff
        border.color: Theme.controlOutline

        Behavior on color {
            enabled: root.visible && Theme.isAnimated
            ColorAnimation {
                duration: 180
                easing.type: Easing.InOutQuad
            }
        }
        Rectangle {
            readonly property bool isAtRight: root.checked !== root.mirrored

            x: isAtRight ? parent.width - width - root.inset : root.inset
            y: root.inset
            width: height
            height: parent.height - 2 * root.inset
            radius: height / 2
            color: Theme.knob
            border.color: Theme.controlOutline

            Rectangle {
                z: -1
                anchors.fill: parent
                anchors.topMargin: 0.5
                anchors.bottomMargin: -1
                radius: height / 2
                color: Theme.knobShadow
            }
            Behavior on x {
                enabled: root.visible && Theme.isAnimated
                NumberAnimation {
                    duration: 180
                    easing.type: Easing.InOutQuad
                }
            }
        }
        FocusRing {
            cornerRadius: parent.radius
            shown: root.visualFocus
        }
    }
}
