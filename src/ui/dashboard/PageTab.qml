import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// The way to one page.
T.TabButton {
    id: root

    required property string symbol

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: Theme.padding
    verticalPadding: Theme.spacing
    font: checked ? Theme.bodySemibold : Theme.body
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.onPressAction: clicked()

    contentItem: SymbolAndText {
        symbol: root.symbol
        text: root.text
        font: root.font
        color: root.checked ? Theme.text : Theme.secondaryText
    }
    background: Rectangle {
        radius: Theme.radius
        color: root.checked ? Theme.controlHovered : root.hovered || root.down ? Theme.control : "transparent"

        FocusRing {
            gap: 0
            shown: root.visualFocus
        }
    }
}
