import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A tooltip that says what a control does.
T.ToolTip {
    id: root

    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? parent.height + Theme.smallSpacing : 0
    implicitWidth: Math.min(implicitContentWidth + leftPadding + rightPadding, Theme.scaled(290))
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Theme.spacing
    horizontalPadding: Theme.spacing
    verticalPadding: Theme.smallSpacing
    delay: 600
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: TextLabel {
        text: root.text
        font: Theme.caption
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: Theme.panel
        border.color: Theme.outline
    }
}
