pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A few choices side by side, of which one is chosen by the pointer or the arrow keys.
T.Control {
    id: root

    required property list<string> choices
    property int currentIndex: 0
    /// The picker's name for screen readers.
    property string title

    /// The user chose.
    signal activated(index: int)

    function choose(index: int): void {
        if (index >= 0 && index < choices.length && index !== currentIndex) {
            activated(index);
        }
    }
    function step(by: int): void {
        choose(currentIndex + (mirrored ? -by : by));
    }

    implicitWidth: row.implicitWidth + leftPadding + rightPadding
    implicitHeight: row.implicitHeight + topPadding + bottomPadding
    padding: 2
    font: Theme.body
    opacity: enabled ? 1 : Theme.disabledOpacity
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    Row {
        id: row

        x: root.leftPadding
        y: root.topPadding

        readonly property double segmentWidth: Math.max(...Array.from(children, child => child.implicitWidth))

        Repeater {
            model: root.choices

            T.AbstractButton {
                id: segment

                required property int index
                required property string modelData
                readonly property bool isChosen: index === root.currentIndex

                implicitWidth: implicitContentWidth + 2 * Theme.padding
                implicitHeight: Math.max(Theme.scaled(26), implicitContentHeight + 2 * Theme.smallSpacing)
                width: row.segmentWidth
                focusPolicy: Qt.NoFocus
                hoverEnabled: true
                text: modelData
                checkable: true
                autoExclusive: true
                checked: isChosen
                onClicked: root.choose(index)

                Accessible.role: Accessible.RadioButton
                Accessible.name: text
                Accessible.onPressAction: if (enabled) root.choose(index)
                Accessible.onToggleAction: if (enabled) root.choose(index)

                contentItem: TextLabel {
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    text: segment.text
                    font: Theme.isHighContrast && segment.isChosen ? Theme.bodySemibold : root.font
                    Accessible.ignored: true
                }
                background: Rectangle {
                    radius: Theme.smallRadius
                    color: segment.isChosen ? Theme.segment : segment.hovered ? Theme.rowHovered : "transparent"
                    border.width: !segment.isChosen ? 0 : Theme.isHighContrast ? 2 : 1
                    border.color: Theme.outline
                }
            }
        }
    }
    background: Rectangle {
        radius: Theme.radius
        color: Theme.control
        border.color: Theme.controlOutline

        FocusRing {
            shown: root.visualFocus
        }
    }
}
