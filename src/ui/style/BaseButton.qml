pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// The base of buttons: responds to the pointer, the keyboard and assistive technology.
T.AbstractButton {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
