import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard

/// The bars of one provider's card.
Item {
    id: root

    required property providerCard card
    /// So that two of them fill the lowest card.
    readonly property double lowestRow: 29

    implicitWidth: bars.implicitWidth + 2 * 16
    implicitHeight: Math.max(98, bars.implicitHeight + 2 * 14)

    ColumnLayout {
        id: bars

        x: 16
        y: 14
        width: parent.width - 2 * 16
        spacing: 12

        QuotaBarRow {
            Layout.fillWidth: true
            Layout.minimumHeight: root.lowestRow
            //: A window of five hours, as short as can be
            label: qsTr("5h")
            row: root.card.fiveHour
        }
        QuotaBarRow {
            Layout.fillWidth: true
            Layout.minimumHeight: root.lowestRow
            //: The weekly window, as short as can be
            label: qsTr("Week")
            row: root.card.week
        }
    }
}
