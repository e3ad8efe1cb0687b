pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A label and, after it, an on/off switch. `toggled` tells what the user did, by whatever means.
T.AbstractButton {
    id: root

    readonly property double inset: 2

    function flip(): void {
        if (enabled) {
            toggle();
            toggled();
        }
    }

    // In Qt 6.4 the constructor of T.Switch leaks while assistive programs listen.
    checkable: true
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, track.height) + topPadding + bottomPadding
    spacing: Theme.largeSpacing
    font: Theme.body
    opacity: enabled ? 1 : Theme.disabledOpacity
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()
    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    contentItem: TextLabel {
        rightPadding: root.mirrored ? 0 : track.width + root.spacing
        leftPadding: root.mirrored ? track.width + root.spacing : 0
        verticalAlignment: Text.AlignVCenter
        text: root.text
        font: root.font
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    Rectangle {
        id: track

        width: 40
        height: 24
        x: root.mirrored ? root.leftPadding : root.width - width - root.rightPadding
        y: (root.height - height) / 2
        radius: height / 2
        color: root.checked ? Theme.accentFill : Theme.switchOff

        Behavior on color {
            enabled: root.visible && Theme.isAnimated
            ColorAnimation {
                duration: 180
                easing.type: Easing.InOutQuad
            }
        }
        Rectangle {
            anchors.fill: knob
            anchors.topMargin: 0.5
            anchors.bottomMargin: -1
            radius: height / 2
            color: Theme.knobShadow
        }
        Rectangle {
            id: knob

            readonly property bool isAtRight: root.checked !== root.mirrored

            x: isAtRight ? track.width - width - root.inset : root.inset
            y: root.inset
            width: height
            height: track.height - 2 * root.inset
            radius: height / 2
            color: Theme.knob

            Behavior on x {
                enabled: root.visible && Theme.isAnimated
                NumberAnimation {
                    duration: 180
                    easing.type: Easing.InOutQuad
                }
            }
        }
        FocusRing {
            cornerRadius: track.radius
            shown: root.visualFocus
        }
    }
}
