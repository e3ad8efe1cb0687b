pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.MenuBar
import Tallyvane.Style

/// The status item's panel: a row per provider and three commands.
FocusScope {
    id: root

    required property MenuBarQuotaViewModel viewModel

    function moveFocus(forward: bool): void {
        // While it is disabled nothing has the focus.
        const current = refresh.showsFocus ? refresh : Window.activeFocusItem;
        const next = current?.nextItemInFocusChain(forward);
        next?.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    // Independent of the figures; only larger text makes the panel wider.
    implicitWidth: Math.max(310, footer.implicitWidth + 2 * Theme.padding)
    implicitHeight: content.implicitHeight + 2 * Theme.padding
    focus: true
    LayoutMirroring.enabled: Theme.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: title.text
    Keys.onDownPressed: moveFocus(true)
    Keys.onUpPressed: moveFocus(false)
    Keys.onTabPressed: moveFocus(true)
    Keys.onBacktabPressed: moveFocus(false)

    Shortcut {
        sequences: ["Ctrl+R", "F5"]
        onActivated: root.viewModel.refreshRequested()
    }
    Shortcut {
        sequence: "Ctrl+,"
        onActivated: root.viewModel.settingsRequested()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: root.viewModel.quitRequested()
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.panel

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: Theme.outline
        }
    }
    ColumnLayout {
        id: content

        anchors.fill: parent
        anchors.margins: Theme.padding
        spacing: Theme.largeSpacing

        RowLayout {
            spacing: Theme.spacing

            TextLabel {
                id: title

                text: "Tallyvane"
                font: Theme.headline
                Accessible.role: Accessible.Heading
            }
            Spinner {
                objectName: "spinner"
                visible: root.viewModel.isRefreshing
            }
        }
        LayoutRepeater {
            model: root.viewModel.rows

            ProviderQuotaRow {
                objectName: name
                Layout.fillWidth: true
                // The text is aligned with the rest; only the highlight extends beyond it.
                Layout.leftMargin: -leftPadding
                Layout.rightMargin: -rightPadding
                Layout.topMargin: -topPadding
                Layout.bottomMargin: -bottomPadding
            }
        }
        Divider {
            Layout.fillWidth: true
        }
        RowLayout {
            id: footer

            spacing: Theme.spacing

            PushButton {
                objectName: "open"
                //: A button that opens the program's window
                text: qsTr("Open Tallyvane")
                onClicked: root.viewModel.openRequested()
            }
            Item {
                Layout.fillWidth: true
            }
            PushButton {
                id: refresh

                objectName: "refresh"
                symbol: "arrow.clockwise"
                enabled: !root.viewModel.isRefreshing
                //: Read aloud for the button that fetches new figures
                Accessible.name: qsTr("Refresh")
                onClicked: root.viewModel.refreshRequested()
            }
            PushButton {
                objectName: "quit"
                //: A button that ends the program
                text: qsTr("Quit")
                onClicked: root.viewModel.quitRequested()
            }
        }
    }
}
