pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.MenuBar
import Tallyvane.Style

/// One provider's figures, and the way to its own page about them.
LinkRow {
    id: root

    required property ProviderRow row

    horizontalPadding: Theme.spacing
    verticalPadding: Theme.smallSpacing
    destination: row.usagePage
    text: row.name
    Accessible.description: row.summary

    contentItem: RowLayout {
        spacing: Theme.spacing

        ColumnLayout {
            spacing: 2
            Layout.fillWidth: true

            TextLabel {
                Layout.fillWidth: true
                text: root.row.name
                font: Theme.bodySemibold
                Accessible.ignored: true
            }
            TextLabel {
                objectName: "summary"
                Layout.fillWidth: true
                text: root.row.summary
                font: Theme.caption
                color: Theme.secondaryText
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        SymbolImage {
            name: "arrow.up.right"
            size: Theme.smallSymbolSize
            color: Theme.tertiaryText
        }
    }
}
