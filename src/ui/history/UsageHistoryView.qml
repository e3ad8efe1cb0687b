pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.History
import Tallyvane.Style

/// The second page: the usage history as a bar chart and a heatmap.
ColumnLayout {
    id: root

    required property HistoryModel viewModel
    required property HeatmapModel heatmap

    spacing: Theme.padding + 2

    AdaptiveRow {
        rowSpacing: Theme.largeSpacing

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            TextLabel {
                Layout.fillWidth: true
                text: qsTr("Usage History")
                font: Theme.title
                Accessible.role: Accessible.Heading
            }
            Flow {
                Layout.fillWidth: true
                // That of one line even when wrapped, as the row's arrangement depends on it.
                Layout.preferredWidth: subtitle.implicitWidth + spacing + key.implicitWidth
                spacing: Theme.largeSpacing

                TextLabel {
                    id: subtitle

                    objectName: "subtitle"
                    text: root.viewModel.subtitle
                    color: Theme.secondaryText
                }
                Row {
                    id: key

                    spacing: Theme.largeSpacing

                    Repeater {
                        model: root.viewModel.key

                        Row {
                            id: provider

                            required property string name
                            required property color colour
                            required property bool isHatched

                            spacing: Theme.smallSpacing + 2

                            ProviderDot {
                                anchors.verticalCenter: parent.verticalCenter
                                colour: provider.colour
                                isHatched: provider.isHatched
                            }
                            TextLabel {
                                text: provider.name
                                color: Theme.secondaryText
                            }
                        }
                    }
                }
            }
        }
        RowLayout {
            Layout.alignment: Qt.AlignBottom
            Layout.fillWidth: false
            spacing: Theme.spacing

            SegmentedPicker {
                objectName: "metric"
                title: qsTr("Metric")
                choices: [qsTr("%"), qsTr("Tokens")]
                currentIndex: root.viewModel.metric
                onActivated: index => root.viewModel.metric = index
            }
            SegmentedPicker {
                objectName: "period"
                title: qsTr("Period")
                choices: [qsTr("Daily"), qsTr("Monthly")]
                currentIndex: root.viewModel.granularity
                onActivated: index => root.viewModel.granularity = index
            }
            PushButton {
                id: copy

                objectName: "copy"
                // Wide enough for either text, so that what is beside it stays in place.
                Layout.minimumWidth: otherText.implicitWidth + leftPadding + rightPadding
                text: copied.running ? qsTr("Copied") : qsTr("Copy")
                onClicked: {
                    root.viewModel.copy();
                    copied.restart();
                }

                TextLabel {
                    id: otherText

                    visible: false
                    text: copied.running ? qsTr("Copy") : qsTr("Copied")
                    Accessible.ignored: true
                }
                Timer {
                    id: copied

                    interval: 1700
                }
                HelpTip {
                    visible: copy.hovered && !copy.down
                    text: qsTr("Copy the daily figures as a table")
                }
            }
        }
    }
    CardSurface {
        Layout.fillWidth: true
        implicitHeight: chart.implicitHeight + 2 * Theme.padding

        HistoryChart {
            id: chart

            objectName: "chart"
            anchors.fill: parent
            anchors.margins: Theme.padding
            viewModel: root.viewModel
        }
    }
    CardSurface {
        Layout.fillWidth: true
        implicitHeight: calendar.implicitHeight + 2 * Theme.padding

        UsageHeatmapView {
            id: calendar

            anchors.fill: parent
            anchors.margins: Theme.padding
            viewModel: root.heatmap
        }
    }
    Caption {
        Layout.fillWidth: true
        text: qsTr("Estimated result. Rolling resets, usage between syncs, and provider-side adjustments can affect accuracy. Local token totals are derived from numeric usage fields only; prompts and responses are never stored.")
    }
    Item {
        Layout.fillHeight: true
    }
}
