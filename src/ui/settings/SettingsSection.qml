import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// A heading with a card below it.
ColumnLayout {
    id: root

    required property string title
    default property alias rows: rows.data

    spacing: Theme.spacing

    TextLabel {
        Layout.leftMargin: Theme.smallSpacing
        text: root.title
        font: Theme.headline
        Accessible.role: Accessible.Heading
    }
    CardSurface {
        Layout.fillWidth: true
        implicitHeight: rows.implicitHeight + 2 * Theme.padding

        ColumnLayout {
            id: rows

            anchors.fill: parent
            anchors.margins: Theme.padding
            spacing: Theme.largeSpacing
        }
    }
}
