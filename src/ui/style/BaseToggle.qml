pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A label and the sign of one of two states, its `indicator`, at either end. `toggled` tells what
/// the user did, by whatever means. In Qt 6.4 the constructors of T.Switch and T.CheckBox leak while
/// assistive programs listen.
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
