pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// The background of things that belong together, with a faint shadow.
Rectangle {
    id: root

    readonly property list<double> shadowReaches: [0.5, 1.5, 3]

    radius: Theme.largeRadius
    color: Theme.card
    border.color: Theme.isDark || Theme.isHighContrast ? Theme.outline : "transparent"

    Repeater {
        model: root.shadowReaches

        Rectangle {
            required property double modelData

            z: -1
            anchors.fill: parent
            anchors.margins: -modelData
            anchors.topMargin: -modelData + 1
            anchors.bottomMargin: -modelData - 1
            radius: root.radius + modelData
            color: Theme.cardShadow
        }
    }
}
