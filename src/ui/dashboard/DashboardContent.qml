pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard
import Tallyvane.Style

/// The first page: a card per provider and the age of the figures.
ColumnLayout {
    id: root

    required property DashboardModel viewModel

    spacing: Theme.padding

    RowLayout {
        Layout.bottomMargin: Theme.smallSpacing
        spacing: Theme.largeSpacing

        ColumnLayout {
            spacing: 2

            TextLabel {
                Layout.fillWidth: true
                text: qsTr("Dashboard")
                font: Theme.title
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
            }
            Grid {
                id: status

                Layout.fillWidth: true
                columns: updated.implicitWidth + columnSpacing + beside.advanceWidth <= width ? 2 : 1
                columnSpacing: Theme.smallSpacing

                TextLabel {
                    id: updated

                    objectName: "updated"
                    text: root.viewModel.updated
                    color: Theme.secondaryText
                }
                TextLabel {
                    objectName: "interval"
                    // No line begins with the dot.
                    text: status.columns === 2 ? beside.text : qsTr("Auto-refreshes every 5 min")
                    color: Theme.secondaryText
                }
                TextMetrics {
                    id: beside

                    font: Theme.body
                    //: Follows "Updated 5 min ago" and a space
                    text: qsTr("· Auto-refreshes every 5 min")
                }
            }
        }
        PushButton {
            objectName: "refresh"
            Layout.alignment: Qt.AlignBottom
            text: qsTr("Refresh")
            symbol: "arrow.clockwise"
            enabled: !root.viewModel.isRefreshing
            onClicked: root.viewModel.refreshRequested()
        }
    }
    ErrorNotice {
        Layout.fillWidth: true
        visible: message !== ""
        message: root.viewModel.lastError
        advice: root.viewModel.advice
        //: %1 is a program's path
        action: root.viewModel.foundProgram === "" ? "" : qsTr("Use %1").arg(root.viewModel.foundProgram)
        onAccepted: root.viewModel.useFoundProgram()
    }
    LayoutRepeater {
        model: root.viewModel.cards

        ProviderQuotaCard {
            objectName: card.name
            Layout.fillWidth: true
        }
    }
    Caption {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Bars and percentages show what is left of each quota.")
    }
    Item {
        Layout.fillHeight: true
    }
    LinkRow {
        id: footer

        objectName: "website"
        Layout.alignment: Qt.AlignHCenter
        horizontalPadding: Theme.spacing
        verticalPadding: Theme.smallSpacing
        destination: root.viewModel.website
        text: root.viewModel.websiteName
        contentItem: TextLabel {
            text: footer.text
            font: Theme.caption
            color: Theme.accent
            Accessible.ignored: true
        }
    }
}
