pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Settings
import Tallyvane.Style

/// Asks whether the program may start at login. Covers the window.
FocusScope {
    id: root

    required property LaunchPromptModel viewModel

    function accept(): void {
        viewModel.accept(wanted.checked);
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text
    Keys.onReturnPressed: accept()
    Keys.onEnterPressed: accept()
    Keys.onEscapePressed: viewModel.decline()
    Component.onCompleted: proceed.forceActiveFocus()

    Shortcut {
        // Otherwise the switch would take the key.
        sequences: ["Return", "Enter"]
        enabled: wanted.activeFocus
        onActivated: root.accept()
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.scrim

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }
    CardSurface {
        anchors.centerIn: parent
        width: Math.min(360 * Theme.point, content.width) + 2 * Theme.pageMargin
        height: content.implicitHeight + 2 * Theme.pageMargin
        color: Theme.panel

        ColumnLayout {
            id: content

            anchors.centerIn: parent
            width: Math.min(360 * Theme.point, root.width - 4 * Theme.pageMargin)
            spacing: Theme.largeSpacing

            SymbolImage {
                Layout.alignment: Qt.AlignHCenter
                name: "menubar.rectangle"
                size: 34 * Theme.point
                color: Theme.indigo
            }
            TextLabel {
                id: title

                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("Keep quotas up to date?")
                font: Theme.title2
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
            TextLabel {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("Tallyvane can live in the menu bar and refresh Codex every five minutes after you sign in to your Mac.")
                color: Theme.secondaryText
                wrapMode: Text.Wrap
            }
            CleanSwitch {
                id: wanted

                objectName: "wanted"
                Layout.fillWidth: true
                Layout.topMargin: Theme.smallSpacing
                text: qsTr("Launch Tallyvane at login")
                checked: true
            }
            TextLabel {
                objectName: "error"
                Layout.fillWidth: true
                visible: text !== ""
                text: root.viewModel.error
                font: Theme.caption
                color: Theme.destructive
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
            }
            RowLayout {
                Layout.topMargin: Theme.spacing
                spacing: Theme.spacing

                PushButton {
                    objectName: "notNow"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    text: qsTr("Not now")
                    onClicked: root.viewModel.decline()
                }
                PushButton {
                    id: proceed

                    objectName: "continue"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    kind: PushButton.Primary
                    text: qsTr("Continue")
                    onClicked: root.accept()
                }
            }
        }
    }
}
