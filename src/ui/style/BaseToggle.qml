pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A label and, before or after it, an `indicator` of an on/off state. Emits `toggled` for changes
/// by the user only. Not a T.Switch or T.CheckBox: in Qt 6.4 their constructors leak while
/// assistive technology is active.
T.AbstractButton {
    id: root

    property bool isIndicatorLast: false
    readonly property bool isIndicatorAtRight: isIndicatorLast !== mirrored

    function flip(): void {
        if (enabled) {
            toggle();
            toggled();
        }
    }

    checkable: true
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, indicator.height) + topPadding + bottomPadding
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

    Binding {
        target: root.indicator
        property: "x"
        value: root.isIndicatorAtRight ? root.width - root.indicator.width - root.rightPadding : root.leftPadding
    }
    Binding {
        target: root.indicator
        property: "y"
        value: (root.height - root.indicator.height) / 2
    }
    contentItem: TextLabel {
        readonly property double room: root.indicator.width + root.spacing

        leftPadding: root.isIndicatorAtRight ? 0 : room
        rightPadding: root.isIndicatorAtRight ? room : 0
        verticalAlignment: Text.AlignVCenter
        text: root.text
        font: root.font
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
