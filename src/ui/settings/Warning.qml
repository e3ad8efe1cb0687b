import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// A text about something that keeps a setting from working and, beside it, a button that may help.
/// A Repeater makes it only once it is needed: hidden, it would delay the page's first visit.
AdaptiveRow {
    id: root

    required property string text
    /// The button's text; without one there is no button.
    property string help

    signal helpWanted

    columnSpacing: Theme.spacing

    RowLayout {
        spacing: Theme.spacing

        SymbolImage {
            Layout.alignment: Qt.AlignTop
            name: "exclamationmark.triangle.fill"
            size: Theme.symbolSize
            color: Theme.warning
        }
        TextLabel {
            Layout.fillWidth: true
            text: root.text
            wrapMode: Text.Wrap
        }
    }
    PushButton {
        objectName: root.objectName + "Help"
        Layout.alignment: Qt.AlignRight
        visible: root.help !== ""
        text: root.help
        onClicked: root.helpWanted()
    }
}
