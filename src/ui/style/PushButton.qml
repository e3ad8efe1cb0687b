pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// A button with a symbol, a text, or both. The keyboard's focus returns to one that was disabled for
/// a moment.
BaseButton {
    id: root

    enum Kind {
        Plain,
        Primary,
        Destructive
    }

    property int kind: PushButton.Plain
    property string symbol
    /// Whether the keyboard's focus is here or will return.
    readonly property bool showsFocus: visualFocus || keepsFocus && focus && !enabled
    property bool keepsFocus: false
    readonly property color ink: kind === PushButton.Primary ? Theme.whiteText : kind === PushButton.Destructive ? Theme.destructive : Theme.text

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, implicitHeight)
    implicitHeight: Math.max(Theme.scaled(30), implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: text === "" ? Theme.spacing : Theme.largeSpacing
    verticalPadding: Theme.smallSpacing
    spacing: Theme.smallSpacing + 2
    font: Theme.body
    opacity: enabled ? 1 : Theme.disabledOpacity
    onFocusChanged: keepsFocus = false
    onVisualFocusChanged: {
        if (enabled) {
            keepsFocus = visualFocus;
        }
    }
    onEnabledChanged: {
        if (enabled && keepsFocus && focus) {
            focusReason = Qt.TabFocusReason; // Qt gives the focus back, but for another reason
        }
    }

    contentItem: SymbolAndText {
        symbol: root.symbol
        text: root.text
        font: root.font
        color: root.ink
        spacing: root.spacing
    }
    background: Rectangle {
        radius: Theme.radius
        color: root.kind === PushButton.Primary ? Theme.accentFill : root.down ? Theme.controlPressed : root.hovered ? Theme.controlHovered : Theme.control
        border.color: Theme.controlOutline

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            visible: root.kind === PushButton.Primary && (root.down || root.hovered)
            color: root.down ? Theme.controlPressed : Theme.controlHovered
        }
        FocusRing {
            shown: root.showsFocus
        }
    }
}
