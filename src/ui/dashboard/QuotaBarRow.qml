import QtQuick
import QtQuick.Layouts
import Tallyvane.Dashboard
import Tallyvane.Style

/// Name, bar, figure and reset time of one quota window.
RowLayout {
    id: root

    required property string label
    required property quotaRow row
    /// Text of one point, in pixels: a screen here has more of them to the inch than the 72 of old.
    readonly property double point: Theme.scaled(12) / 10
    readonly property color ink: row.level === QuotaLevel.Unknown ? Theme.secondaryText : row.level === QuotaLevel.Low ? low : ample
    readonly property color low: Theme.isDark ? Qt.rgba(1, 0.839, 0.039, 1) : Qt.rgba(0.91, 0.639, 0, 1)
    readonly property color ample: Theme.isDark ? Qt.rgba(0.188, 0.82, 0.345, 1) : Qt.rgba(0.204, 0.78, 0.349, 1)

    spacing: 8

    TextLabel {
        Layout.preferredWidth: 34 * root.point
        text: root.label
        font.family: Theme.body.family
        font.pixelSize: 9 * root.point
        font.weight: Font.Bold
        font.letterSpacing: 0.4
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    QuotaBar {
        Layout.fillWidth: true
        fraction: root.row.fraction
        fill: root.ink
        opacity: root.row.opacity
    }
    TextLabel {
        Layout.preferredWidth: 42 * root.point
        text: root.row.figure
        color: root.ink
        font.family: Theme.body.family
        font.pixelSize: 12 * root.point
        font.weight: Font.Bold
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
    TextLabel {
        Layout.preferredWidth: 76 * root.point
        text: root.row.resetText
        color: Theme.secondaryText
        font.family: Theme.body.family
        font.pixelSize: 10.5 * root.point
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 0.8 * 10.5 * root.point
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
