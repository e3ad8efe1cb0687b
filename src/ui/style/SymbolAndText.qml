import QtQuick
import Tallyvane.Style

/// A symbol, a text, or the symbol before the text, centred.
Item {
    id: root

    required property string symbol
    required property string text
    required property font font
    required property color color
    property double spacing: Theme.spacing
    readonly property double advance: symbol === "" ? 0 : text === "" ? picture.width : picture.width + spacing

    implicitWidth: advance + label.implicitWidth
    implicitHeight: Math.max(picture.height, label.implicitHeight)

    Row {
        anchors.centerIn: parent
        spacing: root.spacing

        SymbolImage {
            id: picture

            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            name: root.symbol
            size: Theme.symbolSize
            color: root.color
        }
        TextLabel {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.width - root.advance)
            visible: root.text !== ""
            text: root.text
            font: root.font
            color: root.color
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
