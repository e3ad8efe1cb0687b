pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tallyvane.Settings
import Tallyvane.Style

/// A time of day that can be typed or changed by the arrow keys and the wheel.
T.TextField {
    id: root

    required property SettingsModel viewModel
    /// Minutes after midnight.
    required property int minutes
    /// The field's name for screen readers.
    required property string title

    /// The user chose another time.
    signal picked(minutes: int)

    function showMinutes(): void {
        text = viewModel.timeText(minutes);
    }
    function pick(chosen: int): void {
        if (chosen !== minutes) {
            picked(chosen);
        }
        showMinutes();
    }
    function typed(): int {
        return viewModel.minutesOf(text, minutes);
    }

    onMinutesChanged: showMinutes()
    Component.onCompleted: showMinutes()
    onEditingFinished: pick(typed())
    onActiveFocusChanged: {
        if (activeFocus) {
            selectAll();
        }
    }
    Keys.onUpPressed: pick(viewModel.stepped(typed(), 1))
    Keys.onDownPressed: pick(viewModel.stepped(typed(), -1))
    Keys.onEscapePressed: event => {
        event.accepted = text !== viewModel.timeText(minutes);
        showMinutes();
    }

    implicitWidth: metrics.width + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.scaled(30), contentHeight + topPadding + bottomPadding)
    leftPadding: Theme.spacing + 2
    rightPadding: leftPadding
    topPadding: Theme.smallSpacing
    bottomPadding: topPadding
    horizontalAlignment: TextInput.AlignHCenter
    verticalAlignment: TextInput.AlignVCenter
    font: Theme.body
    color: Theme.text
    selectionColor: Theme.accentFill
    selectedTextColor: Theme.whiteText
    selectByMouse: true
    inputMethodHints: Qt.ImhTime
    Accessible.role: Accessible.EditableText
    Accessible.name: title

    TextMetrics {
        id: metrics

        font: root.font
        text: root.viewModel.timeText(22 * 60 + 58) + " "
    }
    WheelHandler {
        enabled: root.activeFocus
        onWheel: event => root.pick(root.viewModel.stepped(root.typed(), event.angleDelta.y > 0 ? 1 : -1))
    }
    background: Rectangle {
        radius: Theme.radius
        color: Theme.control
        border.color: Theme.outline

        FocusRing {
            shown: root.activeFocus
        }
    }
}
