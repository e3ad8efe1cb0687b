import QtQuick
import QtQuick.Templates as T
import Tallyvane.Style

/// A thin scroll bar over the edge of the content.
T.ScrollBar {
    id: root

    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    minimumSize: 0.1
    visible: size < 1

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: root.pressed || root.hovered ? Theme.secondaryText : Theme.tertiaryText
        opacity: Theme.isHighContrast ? 1 : root.active || root.hovered ? 0.9 : 0.45
    }
}
