pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.History
import Tallyvane.Style

/// A calendar in which a day's colour shows its number of tokens. The pointer or the arrow keys
/// select a day, which the text below describes.
ColumnLayout {
    id: root

    required property HeatmapModel viewModel
    readonly property double gap: 4
    readonly property double labelWidth: weekdays.implicitWidth + Theme.spacing
    readonly property double room: width - labelWidth
    readonly property int weeks: 26 // half a year
    readonly property double pitch: Math.max(8, Math.floor(room / weeks))
    readonly property double cell: pitch - (pitch > 14 ? gap : 2)

    component Cells: HeatCells {
        ground: Theme.card
        contrast: Theme.symbolContrast
        hasWideEdges: Theme.isHighContrast
        isRightToLeft: Theme.isRightToLeft
    }

    spacing: Theme.largeSpacing
    Component.onCompleted: viewModel.weeks = weeks

    AdaptiveRow {
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            TextLabel {
                Layout.fillWidth: true
                text: qsTr("Token Heatmap")
                font: Theme.headline
                Accessible.role: Accessible.Heading
            }
            Caption {
                Layout.fillWidth: true
                text: qsTr("Estimated tokens per day")
            }
        }
        SegmentedPicker {
            objectName: "filter"
            visible: root.viewModel.hasFilter
            title: qsTr("Source")
            choices: [qsTr("Total"), qsTr("Codex"), qsTr("Claude")]
            currentIndex: root.viewModel.filter
            onActivated: index => root.viewModel.filter = index
        }
    }
    FocusScope {
        id: grid

        objectName: "heatmap"
        Layout.fillWidth: true
        implicitHeight: months.height + 7 * root.pitch
        activeFocusOnTab: true
        Accessible.role: Accessible.Chart
        Accessible.name: qsTr("Token Heatmap")
        Accessible.description: root.viewModel.currentText
        Accessible.focusable: true
        Keys.onUpPressed: root.viewModel.step(-1)
        Keys.onDownPressed: root.viewModel.step(1)
        Keys.onLeftPressed: root.viewModel.step(Theme.isRightToLeft ? 7 : -7)
        Keys.onRightPressed: root.viewModel.step(Theme.isRightToLeft ? -7 : 7)
        Keys.onEscapePressed: event => {
            event.accepted = root.viewModel.current >= 0;
            root.viewModel.point(-1);
        }
        onActiveFocusChanged: {
            if (!activeFocus) {
                root.viewModel.point(-1);
            }
        }

        FocusRing {
            gap: Theme.smallSpacing
            shown: grid.activeFocus
        }
        ColumnLayout {
            id: weekdays

            anchors.left: parent.left
            y: months.height - (root.pitch - root.cell) / 2
            spacing: 0

            Repeater {
                model: root.viewModel.weekdays

                Caption {
                    required property int index
                    required property string modelData

                    Layout.fillWidth: true
                    Layout.preferredHeight: root.pitch
                    verticalAlignment: Text.AlignVCenter
                    text: modelData
                    // Every other one if rows are too low for all.
                    opacity: root.pitch >= implicitHeight - 2 || index % 2 === 1 ? 1 : 0
                    Accessible.ignored: true
                }
            }
        }
        Item {
            id: months

            anchors.left: parent.left
            anchors.leftMargin: root.labelWidth
            width: root.weeks * root.pitch
            height: Theme.scaled(20)

            Repeater {
                model: root.viewModel.months

                Caption {
                    required property double position
                    required property string label

                    x: Theme.isRightToLeft ? (1 - position) * months.width - (root.pitch - root.cell) - width : position * months.width
                    visible: x >= 0 && x + width <= months.width + Theme.pageMargin
                    text: label
                    Accessible.ignored: true
                }
            }
        }
        Cells {
            id: days

            anchors.left: months.left
            anchors.top: months.bottom
            cells: root.viewModel.cells
            rows: 7
            cell: root.cell
            pitch: root.pitch
        }
        HoverHandler {
            readonly property point place: point.position

            onPlaceChanged: {
                const along = Theme.isRightToLeft ? days.x + days.width - place.x : place.x - days.x;
                const column = Math.floor(along / root.pitch);
                const row = Math.floor((place.y - days.y) / root.pitch);
                const isInside = column >= 0 && column < root.weeks && row >= 0 && row < 7;
                root.viewModel.point(hovered && isInside ? column * 7 + row : -1);
            }
            onHoveredChanged: {
                if (!hovered) {
                    root.viewModel.point(-1);
                }
            }
        }
        Rectangle {
            readonly property int column: Math.floor(root.viewModel.current / 7)
            readonly property int row: root.viewModel.current % 7

            x: days.x + (Theme.isRightToLeft ? root.weeks - 1 - column : column) * root.pitch - 2
            y: days.y + row * root.pitch - 2
            width: root.cell + 4
            height: root.cell + 4
            radius: root.cell / 4.5 + 2
            visible: root.viewModel.current >= 0
            color: "transparent"
            border.width: 2
            border.color: Theme.text
        }
    }
    AdaptiveRow {
        rowSpacing: Theme.smallSpacing

        TextLabel {
            objectName: "told"
            Layout.fillWidth: true
            text: root.viewModel.currentText
            font: Theme.caption
        }
        Row {
            id: legend

            Layout.alignment: Qt.AlignRight
            spacing: root.gap

            Caption {
                rightPadding: Theme.isRightToLeft ? 0 : Theme.smallSpacing
                text: qsTr("Less")
            }
            Cells {
                y: (legend.height - height) / 2
                cells: root.viewModel.legend
                cell: Theme.scaled(12)
                pitch: Theme.scaled(12) + root.gap
            }
            Caption {
                leftPadding: Theme.isRightToLeft ? 0 : Theme.smallSpacing
                text: qsTr("More")
            }
        }
    }
}
