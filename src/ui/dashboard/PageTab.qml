import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// The way to one page.
T.AbstractButton {
    id: root

    required property string symbol
    required property bool isCurrent

    // As wide as when it is the current one, so that no tab moves when another is opened.
    implicitWidth: Theme.symbolSize + Theme.spacing + Math.ceil(widest.advanceWidth) + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: Theme.padding
    verticalPadding: Theme.spacing
    font: isCurrent ? Theme.bodySemibold : Theme.body
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: isCurrent
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onRightPressed: nextItemInFocusChain(!mirrored).forceActiveFocus(Qt.TabFocusReason)
    Keys.onLeftPressed: nextItemInFocusChain(mirrored).forceActiveFocus(Qt.TabFocusReason)

    TextMetrics {
        id: widest

        font: Theme.bodySemibold
        text: root.text
    }

    contentItem: SymbolAndText {
        symbol: root.symbol
        text: root.text
        font: root.font
        color: root.isCurrent ? Theme.text : Theme.secondaryText
    }
    background: Rectangle {
        radius: Theme.radius
        color: root.isCurrent ? Theme.controlHovered : root.hovered || root.down ? Theme.control : "transparent"

        FocusRing {
            gap: 0
            shown: root.visualFocus
        }
    }
}
