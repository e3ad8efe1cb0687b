import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard
import Tallyvane.Style

/// Name, bar, figure and reset time of one quota window.
RowLayout {
    id: root

    required property string label
    required property quotaRow row
    readonly property color ink: row.level === QuotaLevel.Unknown ? Theme.secondaryText : row.level === QuotaLevel.Low ? Theme.quotaLow : Theme.quotaAmple

    readonly property bool isExplained: bar.isExplained

    spacing: 8

    TextLabel {
        Layout.preferredWidth: 34 * Theme.point
        text: root.label
        font.family: Theme.body.family
        font.pixelSize: 9 * Theme.point
        font.weight: Font.Bold
        font.letterSpacing: Theme.isRightToLeft ? 0 : 0.4 // Arabic letters are joined
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 6 * Theme.point
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    QuotaBar {
        id: bar

        Layout.fillWidth: true
        fraction: root.row.fraction
        fill: root.ink
        isLow: root.row.level === QuotaLevel.Low
        evenFraction: root.row.evenFraction
        pace: root.row.pace
        opacity: Theme.isHighContrast ? 1 : root.row.opacity
    }
    Figure {
        Layout.preferredWidth: 42 * Theme.point
        text: root.row.figure
        color: Theme.isHighContrast ? Theme.text : root.ink
        font: Qt.font({
            family: Theme.body.family,
            pixelSize: 12 * Theme.point,
            weight: Font.Bold
        })
    }
    TextLabel {
        Layout.preferredWidth: 76 * Theme.point
        text: root.row.resetText
        color: Theme.secondaryText
        font.family: Theme.body.family
        font.pixelSize: 10.5 * Theme.point
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 0.8 * 10.5 * Theme.point
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
