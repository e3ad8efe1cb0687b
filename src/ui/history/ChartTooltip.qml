pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// What the bar pointed at stands for.
Rectangle {
    id: root

    required property string title
    required property QtObject lines
    /// What the figures add up to; may be empty.
    required property string note

    implicitWidth: content.implicitWidth + 2 * Theme.largeSpacing
    implicitHeight: content.implicitHeight + 2 * Theme.spacing
    radius: Theme.radius
    color: Theme.segment
    border.color: Theme.outline

    ColumnLayout {
        id: content

        anchors.centerIn: parent
        spacing: Theme.smallSpacing

        TextLabel {
            text: root.title
            font: Theme.captionSemibold
            Accessible.ignored: true
        }
        LayoutRepeater {
            model: root.lines

            RowLayout {
                id: line

                required property string name
                required property string value
                required property color colour
                required property bool isHatched

                spacing: Theme.smallSpacing + 2

                ProviderDot {
                    colour: line.colour
                    isHatched: line.isHatched
                }
                TextLabel {
                    text: line.name
                    font: Theme.caption
                    Accessible.ignored: true
                }
                TextLabel {
                    Layout.fillWidth: true
                    Layout.leftMargin: Theme.spacing
                    horizontalAlignment: Text.AlignRight
                    text: line.value
                    font: Theme.captionSemibold
                    Accessible.ignored: true
                }
            }
        }
        Caption {
            objectName: "note"
            visible: text !== ""
            text: root.note
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }
}
