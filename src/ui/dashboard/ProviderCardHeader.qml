import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard
import Tallyvane.Style

/// The provider's name and plan; while its figures are out of date, a symbol and their age. Its items
/// never turn invisible: in Qt 6.4 a row that has not been laid out yet puts those that appear at its
/// start.
RowLayout {
    id: root

    required property providerCard card

    spacing: Theme.spacing

    SymbolImage {
        name: root.card.icon
        size: Theme.scaled(20)
        color: Theme.distinct(root.card.accent, Theme.card)
    }
    TextLabel {
        text: root.card.name
        font.family: Theme.body.family
        font.pixelSize: Theme.scaled(15)
        font.weight: Font.DemiBold
        font.letterSpacing: -0.1
        Accessible.ignored: true
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.maximumWidth: implicitWidth
        Layout.leftMargin: hasPlan ? 0 : -root.spacing

        readonly property bool hasPlan: root.card.plan !== ""

        implicitWidth: hasPlan ? Math.ceil(plan.implicitWidth) + 2 * 6 : 0 // the layout rounds
        implicitHeight: plan.implicitHeight + 2 * 2
        radius: Theme.smallRadius - 1
        color: Theme.badgeGround(root.card.accent)
        border.color: Theme.isHighContrast ? plan.color : "transparent"

        TextLabel {
            id: plan

            objectName: "plan"
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * 6)
            text: root.card.plan
            elide: Text.ElideRight
            color: Theme.badgeInk(root.card.accent)
            font.family: Theme.body.family
            font.pixelSize: 9 * Theme.point
            font.weight: Font.Bold
            Accessible.ignored: true
        }
    }
    SymbolImage {
        opacity: root.card.isPending ? 1 : 0
        name: "arrow.trianglehead.2.clockwise.rotate.90"
        size: 10 * Theme.point
        color: Theme.secondaryText
        Accessible.ignored: !root.card.isPending
        Accessible.role: Accessible.Graphic
        //: Read aloud for the symbol that marks outdated figures
        Accessible.name: qsTr("Sync pending")
    }
    Caption {
        objectName: "age"
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignRight
        text: root.card.age
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
