pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Settings
import Tallyvane.Style

/// A time of day that can be typed or changed by the arrow keys and the wheel.
TextEntry {
    id: root

    required property SettingsModel viewModel
    /// Minutes after midnight.
    required property int minutes

    /// The user chose another time.
    signal picked(int minutes)

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
    Keys.onUpPressed: pick(viewModel.stepped(typed(), 1))
    Keys.onDownPressed: pick(viewModel.stepped(typed(), -1))
    Keys.onEscapePressed: event => {
        event.accepted = text !== viewModel.timeText(minutes);
        showMinutes();
    }

    implicitWidth: Math.ceil(metrics.advanceWidth) + leftPadding + rightPadding
    horizontalAlignment: TextInput.AlignHCenter
    inputMethodHints: Qt.ImhTime

    TextMetrics {
        id: metrics

        font: root.font
        text: root.viewModel.timeText(22 * 60 + 58) + " "
    }
    WheelHandler {
        enabled: root.activeFocus
        onWheel: event => root.pick(root.viewModel.stepped(root.typed(), event.angleDelta.y > 0 ? 1 : -1))
    }
}
