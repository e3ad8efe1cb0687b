pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tallyvane.MenuBar
import Tallyvane.Style

/// One provider's figures. A click opens the provider's usage page.
LinkRow {
    id: root

    required property string name
    required property url usagePage
    required property string summary
    required property string details
    required property string trouble
    required property string description

    implicitWidth: 0 // it fills the panel, whose width does not depend on the texts
    horizontalPadding: Theme.spacing
    verticalPadding: Theme.smallSpacing
    destination: usagePage
    text: name
    Accessible.description: description

    contentItem: RowLayout {
        spacing: Theme.spacing

        ColumnLayout {
            spacing: 2
            Layout.fillWidth: true

            TextLabel {
                Layout.fillWidth: true
                text: root.name
                font: Theme.bodySemibold
                Accessible.ignored: true
            }
            Caption {
                objectName: "summary"
                Layout.fillWidth: true
                text: root.summary
                Accessible.ignored: true
            }
            Caption {
                objectName: "details"
                Layout.fillWidth: true
                visible: text !== ""
                text: root.details
                Accessible.ignored: true
            }
        }
        SymbolImage {
            name: "arrow.up.right"
            size: Theme.smallSymbolSize
            color: Theme.tertiaryText
        }
    }

    HelpTip {
        visible: root.trouble !== "" && root.hovered && !root.down
        text: root.trouble
    }
}
