import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard
import Tallyvane.Style

/// The bars of one provider's card.
Item {
    id: root

    required property providerCard card
    /// Two of these fill a card of the minimum height.
    readonly property double minimumRowHeight: 29
    /// Whether a bar tells of itself.
    readonly property bool isExplained: fiveHour.isExplained || week.isExplained

    implicitWidth: bars.implicitWidth + 2 * 16
    implicitHeight: Math.max(98, bars.implicitHeight + 2 * 14)

    ColumnLayout {
        id: bars

        x: 16
        y: 14
        width: parent.width - 2 * 16
        spacing: 12

        QuotaBarRow {
            id: fiveHour

            Layout.fillWidth: true
            Layout.minimumHeight: root.minimumRowHeight
            //: The five-hour quota window, as short as possible
            label: qsTr("5h")
            row: root.card.fiveHour
        }
        QuotaBarRow {
            id: week

            Layout.fillWidth: true
            Layout.minimumHeight: root.minimumRowHeight
            //: The weekly quota window, as short as possible
            label: qsTr("Week")
            row: root.card.week
        }
        RowLayout {
            visible: root.card.trouble !== ""
            spacing: Theme.smallSpacing + 2

            SymbolImage {
                Layout.alignment: Qt.AlignTop
                name: "exclamationmark.triangle.fill"
                size: Theme.symbolSize
                color: Theme.warning
            }
            Caption {
                objectName: "trouble"
                Layout.fillWidth: true
                text: root.card.trouble
                Accessible.ignored: true
            }
        }
    }
}
