pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard
import Tallyvane.Style

/// One provider's quotas. A click anywhere opens the provider's usage page.
LinkRow {
    id: root

    required property providerCard card
    property bool isBarExplained: false

    function spoken(label: string, row: quotaRow): string {
        //: A quota window, the percentage left of it, and when it resets
        const figures = qsTr("%1: %2, %3").arg(label).arg(row.figure).arg(row.resetText);
        return row.pace === "" ? figures : figures + ". " + row.pace;
    }
    function unlessEmpty(text: string): string {
        return text === "" ? "" : "; " + text;
    }

    padding: 0
    destination: card.usagePage
    text: card.plan === "" ? card.name : card.name + " " + card.plan
    Accessible.description: spoken(qsTr("5h"), card.fiveHour) + "; " + spoken(qsTr("Week"), card.week) + unlessEmpty(card.age) + unlessEmpty(card.trouble)

    contentItem: ColumnLayout {
        spacing: 0

        ProviderCardHeader {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 14
            card: root.card
        }
        AppBarsCardBody {
            Layout.fillWidth: true
            card: root.card
            onIsExplainedChanged: root.isBarExplained = isExplained
        }
    }
    background: CardSurface {
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.control : root.hovered ? Theme.rowHovered : "transparent"
        }
        FocusRing {
            cornerRadius: parent.radius
            shown: root.visualFocus
        }
    }

    HelpTip {
        visible: root.hovered && !root.down && !root.isBarExplained
        //: %1 is an assistant's name
        text: qsTr("Open %1 usage details").arg(root.card.name)
    }
}
