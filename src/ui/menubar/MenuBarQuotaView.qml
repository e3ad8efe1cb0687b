pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.MenuBar
import Tallyvane.Style

/// The panel: a row per provider and the three commands.
FocusScope {
    id: root

    required property MenuBarQuotaViewModel viewModel

    function moveFocus(forward: bool): void {
        const next = Window.activeFocusItem?.nextItemInFocusChain(forward);
        next?.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    // The width is the same whatever the figures; only larger text widens it.
    implicitWidth: Math.max(310, footer.implicitWidth + 2 * Theme.padding)
    implicitHeight: content.implicitHeight + 2 * Theme.padding
    focus: true
    LayoutMirroring.enabled: Theme.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: title.text
    Keys.onDownPressed: moveFocus(true)
    Keys.onUpPressed: moveFocus(false)

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

                //: The program's name; not to be translated
                text: qsTr("Tallyvane")
                font: Theme.headline
                Accessible.role: Accessible.Heading
            }
            Spinner {
                objectName: "spinner"
                visible: root.viewModel.isRefreshing
            }
        }
        Repeater {
            model: root.viewModel.rows

            ProviderQuotaRow {
                required property ProviderRow modelData

                objectName: modelData.name
                row: modelData
                Layout.fillWidth: true
                // The text stands in line with the rest; only the highlight goes beyond.
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
                objectName: "refresh"
                symbol: "arrow.clockwise"
                enabled: !root.viewModel.isRefreshing
                //: What a screen reader says for the button that fetches the figures anew
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
