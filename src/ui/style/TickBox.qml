pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A check box and its label. `toggled` tells what the user did, by whatever means.
T.AbstractButton {
    id: root

    function flip(): void {
        if (enabled) {
            toggle();
            toggled();
        }
    }

    // In Qt 6.4 the constructor of T.CheckBox leaks while assistive programs listen.
    checkable: true
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, box.height) + topPadding + bottomPadding
    spacing: Theme.spacing
    font: Theme.body
    opacity: enabled ? 1 : Theme.disabledOpacity
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()
    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    contentItem: TextLabel {
        leftPadding: root.mirrored ? 0 : box.width + root.spacing
        rightPadding: root.mirrored ? box.width + root.spacing : 0
        verticalAlignment: Text.AlignVCenter
        text: root.text
        font: root.font
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    Rectangle {
        id: box

        width: Theme.scaled(18)
        height: width
        x: root.mirrored ? root.width - width - root.rightPadding : root.leftPadding
        y: (root.height - height) / 2
        radius: Theme.smallRadius - 1
        color: root.checked ? Theme.accentFill : root.hovered ? Theme.controlHovered : Theme.control
        border.width: root.checked ? 0 : 1
        border.color: Theme.tertiaryText

        SymbolImage {
            anchors.centerIn: parent
            visible: root.checked
            name: "checkmark"
            size: Theme.scaled(14)
            color: Theme.whiteText
        }
        FocusRing {
            cornerRadius: box.radius
            shown: root.visualFocus
        }
    }
}
