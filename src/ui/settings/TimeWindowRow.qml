pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Settings
import Tallyvane.Style

/// One time window in which notifications may appear.
ColumnLayout {
    id: root

    required property SettingsModel viewModel
    required property string windowId
    required property bool allDay
    required property int startMinutes
    required property int endMinutes
    required property bool isOn
    required property string note
    required property int index
    readonly property alias removeButton: removeButton

    /// The row is about to be removed by the user.
    signal removing(index: int)

    spacing: Theme.smallSpacing

    RowLayout {
        Layout.minimumHeight: Theme.scaled(32)
        spacing: Theme.spacing

        TickBox {
            objectName: "allDay"
            text: qsTr("All day")
            checked: root.allDay
            onToggled: root.viewModel.changeWindow(root.windowId, checked, root.startMinutes, root.endMinutes)
        }
        Item {
            Layout.fillWidth: true
        }
        TimeField {
            objectName: "start"
            visible: !root.allDay
            viewModel: root.viewModel
            minutes: root.startMinutes
            //: Read aloud for the field
            title: qsTr("Start time")
            onPicked: minutes => root.viewModel.changeWindow(root.windowId, root.allDay, minutes, root.endMinutes)
        }
        TextLabel {
            visible: !root.allDay
            text: "–"
            color: Theme.secondaryText
            Accessible.ignored: true
        }
        TimeField {
            objectName: "end"
            visible: !root.allDay
            viewModel: root.viewModel
            minutes: root.endMinutes
            //: Read aloud for the field
            title: qsTr("End time")
            onPicked: minutes => root.viewModel.changeWindow(root.windowId, root.allDay, root.startMinutes, minutes)
        }
        IconButton {
            id: removeButton

            objectName: "remove"
            symbol: "trash"
            ink: Theme.destructive
            //: Read aloud for the button
            text: qsTr("Remove time window")
            onClicked: {
                root.removing(root.index);
                root.viewModel.removeWindow(root.windowId);
            }
        }
    }
    LayoutRepeater {
        model: root.note === "" ? 0 : 1

        Warning {
            objectName: "windowNote"
            text: root.note
            help: root.isOn ? "" : qsTr("Turn on")
            onHelpWanted: root.viewModel.turnWindowOn(root.windowId)
        }
    }
}
