import QtQuick
import Tallyvane.Style

/// A provider's colour in a key.
Rectangle {
    id: root

    required property color colour
    required property bool isHatched

    implicitWidth: Theme.scaled(Theme.isHighContrast ? 12 : 8)
    implicitHeight: implicitWidth
    radius: Theme.isHighContrast ? 0 : width / 2
    color: colour
    border.color: Theme.controlOutline

    Hatching {
        anchors.fill: parent
        anchors.margins: 1
        visible: Theme.isHighContrast && root.isHatched
        color: Theme.hatching
    }
}
