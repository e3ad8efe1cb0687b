import QtQuick
import QtQuick.Layouts
import Tallyvane.Style

/// A text about something that keeps a setting from working.
RowLayout {
    id: root

    required property string text

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
