import QtQuick
import Tallyvane.Style

/// The tab of one page. Its keyboard shortcut works like a click.
BaseButton {
    id: root

    required property string symbol
    required property bool isCurrent
    required property string shortcut

    // As wide as when it is current, so that tabs stay in place when another page opens.
    implicitWidth: Theme.symbolSize + Theme.spacing + Math.ceil(widest.implicitWidth) + leftPadding + rightPadding
    horizontalPadding: Theme.padding
    verticalPadding: Theme.spacing
    font: isCurrent ? Theme.bodySemibold : Theme.body

    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: isCurrent
    Keys.onRightPressed: nextItemInFocusChain(!mirrored).forceActiveFocus(Qt.TabFocusReason)
    Keys.onLeftPressed: nextItemInFocusChain(mirrored).forceActiveFocus(Qt.TabFocusReason)

    Shortcut {
        sequence: root.shortcut
        enabled: root.enabled
        onActivated: root.clicked()
    }
    // TextMetrics would tell up to two pixels less.
    TextLabel {
        id: widest

        visible: false
        font: Theme.bodySemibold
        text: root.text
        Accessible.ignored: true
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
        border.color: root.isCurrent ? Theme.controlOutline : "transparent"

        FocusRing {
            gap: 0
            shown: root.visualFocus
        }
    }
}
