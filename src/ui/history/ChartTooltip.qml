pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// The title and figures of the bar pointed at.
Rectangle {
    id: root

    required property string title
    required property QtObject lines

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
        Repeater {
            model: root.lines

            RowLayout {
                id: line

                required property string name
                required property string value
                required property color colour

                spacing: Theme.smallSpacing + 2

                Rectangle {
                    implicitWidth: Theme.scaled(8)
                    implicitHeight: implicitWidth
                    radius: width / 2
                    color: line.colour
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
    }
}
