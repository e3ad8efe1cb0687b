import QtQuick
import Tallyvane.Style

/// A busy indicator. It turns in ten steps a second, and only while it is visible.
Item {
    id: root

    property double size: Theme.symbolSize
    readonly property int spokes: 8

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.ProgressBar
    //: Read aloud for the busy indicator
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
