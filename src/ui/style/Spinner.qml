import QtQuick
import Tallyvane.Style

/// Turns in steps, ten a second, and only while someone can see it.
Item {
    id: root

    property double size: Theme.symbolSize
    readonly property int spokes: 8

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.ProgressBar
    //: What a screen reader says for the sign that work goes on
    Accessible.name: qsTr("Working")

    SymbolImage {
        id: picture

        anchors.fill: parent
        name: "progress"
        color: Theme.secondaryText
    }
    Timer {
        interval: 100
        repeat: true
        running: root.visible && root.Window.visibility !== Window.Hidden
        onTriggered: picture.rotation = (picture.rotation + 360 / root.spokes) % 360
    }
}
