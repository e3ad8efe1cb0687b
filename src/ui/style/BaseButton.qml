pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// What can be pressed: by the pointer, by the keys and by assistive programs.
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
