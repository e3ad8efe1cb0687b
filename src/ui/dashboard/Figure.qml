pragma ComponentBehavior: Bound

import QtQuick
import Tallyvane.Style

/// A number whose digits are equally wide in every font, at the trailing edge.
Item {
    id: root

    required property string text
    required property color color
    required property font font

    implicitWidth: characters.width
    implicitHeight: characters.height

    FontMetrics {
        id: metrics

        readonly property double digitWidth: widest(font)

        function widest(font: font): double {
            return Math.max(...Array.from("0123456789", digit => advanceWidth(digit)));
        }

        font: root.font
    }
    Row {
        id: characters

        x: Theme.isRightToLeft ? 0 : root.width - width
        LayoutMirroring.enabled: false // numbers are written from left to right everywhere

        Repeater {
            // Digits of other scripts are equally wide in most fonts, and Arabic ones have their place
            // among the signs in a whole text only.
            model: /[0-9]/.test(root.text) ? Array.from(root.text) : [root.text]

            TextLabel {
                required property string modelData

                width: modelData >= "0" && modelData <= "9" ? metrics.digitWidth : implicitWidth
                horizontalAlignment: Text.AlignHCenter
                text: modelData
                color: root.color
                font: root.font
                Accessible.ignored: true
            }
        }
    }
}
