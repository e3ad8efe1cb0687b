pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.History
import Tallyvane.Style

/// Stacked bars per day or month. The pointer or the arrow keys select a bar, which a tooltip
/// describes.
FocusScope {
    id: root

    required property HistoryModel viewModel
    readonly property double labelWidth: {
        let widest = 0;
        for (let i = 0; i < valueLabels.count; ++i) {
            widest = Math.max(widest, valueLabels.itemAt(i)?.implicitWidth ?? 0);
        }
        return widest;
    }

    readonly property double barWidth: Math.min(viewModel.barThickness * plot.width, Theme.scaled(56))

    /// The left edge of an item of width `size` centred at the fraction `part` of the plot's width.
    function across(part: double, size: double): double {
        return (Theme.isRightToLeft ? 1 - part : part) * plot.width - size / 2;
    }

    implicitHeight: Theme.scaled(216)
    activeFocusOnTab: true
    Accessible.role: Accessible.Chart
    Accessible.name: viewModel.subtitle
    Accessible.description: viewModel.hoveredText
    Accessible.focusable: true
    Keys.onLeftPressed: viewModel.step(Theme.isRightToLeft ? 1 : -1)
    Keys.onRightPressed: viewModel.step(Theme.isRightToLeft ? -1 : 1)
    Keys.onEscapePressed: event => {
        event.accepted = viewModel.isHovered;
        viewModel.leave();
    }
    onActiveFocusChanged: {
        if (!activeFocus) {
            viewModel.leave();
        }
    }

    FocusRing {
        gap: Theme.smallSpacing
        shown: root.activeFocus
    }
    Item {
        id: plot

        anchors.fill: parent
        anchors.leftMargin: root.labelWidth + Theme.spacing
        anchors.topMargin: Theme.scaled(8)
        anchors.bottomMargin: Theme.scaled(24)

        Repeater {
            id: valueLabels

            model: root.viewModel.valueMarks

            Caption {
                id: valueLabel

                required property double position
                required property string label

                x: Theme.isRightToLeft ? plot.width + Theme.spacing : -width - Theme.spacing
                y: (1 - position) * plot.height - height / 2
                text: label
                Accessible.ignored: true

                Rectangle {
                    x: -valueLabel.x
                    y: valueLabel.height / 2
                    width: plot.width
                    height: 1
                    color: valueLabel.position === 0 ? Theme.outline : Theme.divider
                }
            }
        }
        Repeater {
            model: root.viewModel.dateMarks

            Caption {
                required property double position
                required property string label

                x: Math.max(0, Math.min(root.across(position, width), plot.width - width))
                y: plot.height + Theme.smallSpacing
                text: label
                Accessible.ignored: true
            }
        }
        ChartBars {
            objectName: "bars"
            anchors.fill: parent
            segments: root.viewModel.segments
            barWidth: root.barWidth
            dimmedOpacity: root.viewModel.isHovered ? 0.28 : 1
            outline: Theme.controlOutline
            hatching: Theme.isHighContrast ? Theme.hatching : "transparent"
            isRightToLeft: Theme.isRightToLeft

            Behavior on dimmedOpacity {
                enabled: Theme.isAnimated
                NumberAnimation {
                    duration: Theme.quickly
                }
            }
        }
        TextLabel {
            anchors.centerIn: parent
            visible: root.viewModel.isEmpty
            leftPadding: Theme.spacing
            rightPadding: Theme.spacing
            text: qsTr("Nothing recorded yet")
            color: Theme.secondaryText
            background: Rectangle {
                color: Theme.card // covers the grid lines behind the text
            }
        }
        HoverHandler {
            onPointChanged: {
                if (hovered) {
                    const part = point.position.x / plot.width;
                    root.viewModel.hover(Theme.isRightToLeft ? 1 - part : part);
                }
            }
            onHoveredChanged: {
                if (!hovered) {
                    root.viewModel.leave();
                }
            }
        }
        TapHandler {
            onTapped: root.forceActiveFocus(Qt.MouseFocusReason)
        }
        Repeater {
            model: root.viewModel.isHovered ? 1 : 0

            ChartTooltip {
                readonly property double beside: root.across(root.viewModel.hoveredCentre, 0)
                readonly property double away: root.barWidth / 2 + Theme.spacing
                readonly property double wanted: beside + (beside > plot.width / 2 ? -width - away : away)

                // On the side of the bar that has more room.
                x: Math.max(0, Math.min(wanted, plot.width - width))
                y: 0
                title: root.viewModel.hoveredTitle
                lines: root.viewModel.hoveredLines
                note: root.viewModel.hoveredNote
            }
        }
    }
}
