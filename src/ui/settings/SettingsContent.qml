pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Settings
import Tallyvane.Style

/// The third page.
ColumnLayout {
    id: root

    required property SettingsModel viewModel

    component TurnedOff: Warning {
        text: qsTr("Notifications are turned off in System Settings")
        help: root.viewModel.hasNotificationSettings ? qsTr("Open Settings") : ""
        onHelpWanted: root.viewModel.openNotificationSettings()
    }

    /// Focuses the time window that has taken the place of the one removed at `index`.
    function focusTimeWindow(index: int): void {
        const row = timeWindows.itemAt(Math.min(index, timeWindows.count - 1)) as TimeWindowRow;
        (row?.removeButton ?? addWindow).forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.pageMargin
    Component.onCompleted: viewModel.show()
    onVisibleChanged: {
        if (visible) {
            viewModel.show();
        }
    }

    Connections {
        target: root.Window.window
        enabled: root.visible

        function onActiveChanged(): void {
            root.viewModel.readAuthorization();
        }
    }

    TextLabel {
        text: qsTr("Settings")
        font: Theme.title
        Accessible.role: Accessible.Heading
    }
    SettingsSection {
        title: qsTr("Appearance")

        AdaptiveRow {
            columnSpacing: Theme.spacing

            TextLabel {
                id: schemeLabel

                Layout.fillWidth: true
                text: qsTr("Color scheme")
            }
            SegmentedPicker {
                objectName: "appearance"
                title: schemeLabel.text
                choices: [qsTr("System"), qsTr("Light"), qsTr("Dark")]
                currentIndex: root.viewModel.appearance
                onActivated: index => root.viewModel.appearance = index
            }
        }
        AdaptiveRow {
            columnSpacing: Theme.spacing

            TextLabel {
                id: providersLabel

                Layout.fillWidth: true
                text: qsTr("Assistants shown")
            }
            SegmentedPicker {
                objectName: "providers"
                title: providersLabel.text
                choices: [qsTr("Both"), qsTr("Codex"), qsTr("Claude")]
                currentIndex: root.viewModel.providers
                onActivated: index => root.viewModel.providers = index
            }
        }
        Caption {
            Layout.fillWidth: true
            text: qsTr("A hidden assistant is not asked for figures, and its history is kept. One is always shown.")
        }
    }
    SettingsSection {
        title: qsTr("Background refresh")

        CleanSwitch {
            objectName: "launchAtLogin"
            Layout.fillWidth: true
            text: qsTr("Launch menu bar app at login")
            checked: root.viewModel.launchesAtLogin
            onToggled: root.viewModel.setLaunchesAtLogin(checked)
        }
        MessageText {
            objectName: "launchError"
            Layout.fillWidth: true
            text: root.viewModel.launchError
            color: Theme.destructive
        }
        Caption {
            Layout.fillWidth: true
            text: qsTr("The menu bar app refreshes Codex and Claude every five minutes. Claude usage is read from Claude Code's stored sign-in; macOS asks once for Keychain access.")
        }
        Divider {
            visible: root.viewModel.showsCodex
            Layout.fillWidth: true
        }
        AdaptiveRow {
            visible: root.viewModel.showsCodex
            columnSpacing: Theme.spacing

            TextLabel {
                id: codexLabel

                text: qsTr("Codex program")
            }
            RowLayout {
                spacing: Theme.spacing

                TextEntry {
                    objectName: "codexPath"
                    Layout.fillWidth: true
                    implicitWidth: Theme.scaled(260)
                    readonly property string stored: root.viewModel.codexPath

                    title: codexLabel.text
                    placeholderText: qsTr("Automatic")
                    onStoredChanged: text = stored
                    Component.onCompleted: text = stored
                    onEditingFinished: {
                        if (text !== stored) {
                            root.viewModel.setCodexPath(text);
                        }
                    }
                    Keys.onEscapePressed: event => {
                        event.accepted = text !== stored;
                        text = stored;
                    }
                }
                PushButton {
                    objectName: "codexAutomatic"
                    visible: root.viewModel.codexPath !== ""
                    text: qsTr("Automatic")
                    onClicked: root.viewModel.setCodexPath("")
                }
            }
        }
        Caption {
            objectName: "codexState"
            Layout.fillWidth: true
            visible: root.viewModel.showsCodex
            text: root.viewModel.codexState
            color: root.viewModel.isCodexFound ? Theme.secondaryText : Theme.destructive
        }
    }
    SettingsSection {
        title: qsTr("Reset notifications")

        CleanSwitch {
            objectName: "notifies"
            Layout.fillWidth: true
            text: qsTr("Notify when a quota resets")
            checked: root.viewModel.notifies
            onToggled: root.viewModel.notifies = checked
        }
        Caption {
            Layout.fillWidth: true
            text: qsTr("Sends a desktop alert when Codex or Claude's quota resets during an enabled window. Requires the menu bar app to be running.")
        }
        LayoutRepeater {
            model: root.viewModel.isAuthorized ? 0 : 1

            TurnedOff {
                objectName: "notAuthorized"
            }
        }
        LayoutRepeater {
            model: root.viewModel.windowsNote === "" ? 0 : 1

            Warning {
                objectName: "windowsNote"
                text: root.viewModel.windowsNote
            }
        }
        Divider {
            Layout.fillWidth: true
        }
        LayoutRepeater {
            id: timeWindows

            model: root.viewModel.windows

            TimeWindowRow {
                Layout.fillWidth: true
                viewModel: root.viewModel
                onRemoving: index => Qt.callLater(root.focusTimeWindow, index)
            }
        }
        PushButton {
            id: addWindow

            objectName: "addWindow"
            text: qsTr("Add time window")
            symbol: "plus"
            onClicked: root.viewModel.addWindow()
        }
    }
    SettingsSection {
        title: qsTr("Privacy")

        RowLayout {
            spacing: Theme.spacing

            SymbolImage {
                Layout.alignment: Qt.AlignTop // beside the first line
                name: "lock.shield"
                size: Theme.scaled(18)
                color: Theme.text
            }
            TextLabel {
                Layout.fillWidth: true
                text: qsTr("All history stays on this Mac")
                wrapMode: Text.Wrap
            }
        }
        Caption {
            Layout.fillWidth: true
            text: qsTr("No analytics, cloud database, remote logging, prompts, responses, file paths, emails, credentials, or account identifiers are collected.")
        }
        AdaptiveRow {
            PushButton {
                objectName: "clearHistory"
                kind: PushButton.Destructive
                text: qsTr("Clear usage history")
                onClicked: root.viewModel.clearHistory()
            }
            MessageText {
                objectName: "historyMessage"
                Layout.fillWidth: true
                text: root.viewModel.historyMessage
            }
        }
    }
    SettingsSection {
        title: qsTr("Low quota")

        CleanSwitch {
            objectName: "warnsOfLowQuota"
            Layout.fillWidth: true
            text: qsTr("Notify when a quota runs low")
            checked: root.viewModel.warnsOfLowQuota
            onToggled: root.viewModel.warnsOfLowQuota = checked
        }
        Caption {
            Layout.fillWidth: true
            text: qsTr("Sends a desktop alert when 25 % and 10 % of a quota are left, and when it is going to run out before its reset. The time windows above apply. Requires the menu bar app to be running.")
        }
        LayoutRepeater {
            model: root.viewModel.warnsOfLowQuota && !root.viewModel.isAuthorized ? 1 : 0

            TurnedOff {
                objectName: "lowQuotaNotAuthorized"
            }
        }
    }
    Item {
        Layout.fillHeight: true
    }
}
