pragma Singleton

import QtQml
import QtQuick
import Tallyvane.Style

/// The colours, distances and type sizes of all windows. Type follows the desktop's text size.
///
/// Colours elsewhere: the accent is derived from the desktop's in appearance.cpp; those that stand
/// for data come with it, the providers' from model/quota_display.h and the heatmap's from
/// history/heatmap.h, neither of which knows QML; the panel decides the status item's ink.
QtObject {
    id: root

    readonly property bool isDark: Appearance.isDark

    readonly property bool isRightToLeft: Appearance.isRightToLeft

    /// Whether changes may be animated.
    readonly property bool isAnimated: !Appearance.isMotionReduced

    // Surfaces, from back to front.
    readonly property color window: isDark ? "#202124" : "#f6f6f8"
    readonly property color panel: isDark ? "#2a2b2f" : "#fcfcfd"
    readonly property color card: isDark ? "#2a2b2f" : "#ffffff"
    readonly property color outline: isDark ? "#1fffffff" : "#1f000000"
    readonly property color divider: isDark ? "#1cffffff" : "#18000000"
    readonly property color cardShadow: isDark ? "#18000000" : "#08000000"
    readonly property color scrim: isDark ? "#8c000000" : "#4d000000"

    // Ink. The first two are readable as small text on every surface, the third as a symbol.
    readonly property color text: isDark ? "#f3f3f5" : "#1c1c1f"
    readonly property color secondaryText: isDark ? "#b6b7bd" : "#5d5e66"
    readonly property color tertiaryText: isDark ? "#8e9098" : "#82848d"
    readonly property color accent: Appearance.accentInk
    readonly property color destructive: isDark ? "#ff9b94" : "#b3201a"
    readonly property color success: isDark ? "#30d158" : "#1f9d43"
    readonly property color warning: isDark ? "#ffb340" : "#c25e00"
    readonly property color notice: Qt.alpha(warning, isDark ? 0.14 : 0.1)
    readonly property color indigo: isDark ? "#8b8af5" : "#5856d6"

    // Quota bars and their figures.
    readonly property color quotaAmple: isDark ? Qt.rgba(0.188, 0.82, 0.345, 1) : Qt.rgba(0.204, 0.78, 0.349, 1)
    readonly property color quotaLow: isDark ? Qt.rgba(1, 0.839, 0.039, 1) : Qt.rgba(0.91, 0.639, 0, 1)
    readonly property color quotaTrack: isDark ? "#2cffffff" : "#16000000"

    // Controls.
    readonly property color control: isDark ? "#1affffff" : "#0d000000"
    readonly property color controlHovered: isDark ? "#2affffff" : "#16000000"
    readonly property color controlPressed: isDark ? "#22ffffff" : "#22000000"
    readonly property color rowHovered: isDark ? "#12ffffff" : "#0a000000"
    readonly property color accentFill: Appearance.accentFill
    readonly property color whiteText: "#ffffff"
    readonly property color switchOff: "#59808080"
    readonly property color knob: "#ffffff"
    readonly property color knobShadow: "#38000000"
    readonly property color segment: isDark ? "#5a5c63" : "#ffffff"
    readonly property double disabledOpacity: 0.4

    // Distances, in pixels.
    readonly property double smallSpacing: 4
    readonly property double spacing: 8
    readonly property double largeSpacing: 12
    readonly property double padding: 14
    readonly property double pageMargin: 24
    readonly property double smallRadius: 6
    readonly property double radius: 8
    readonly property double largeRadius: 12
    readonly property double focusWidth: 2
    readonly property int quickly: 120 // milliseconds

    // Type.
    readonly property font body: type(13, Font.Normal)
    readonly property font bodySemibold: type(13, Font.DemiBold)
    readonly property font headline: type(15, Font.DemiBold)
    readonly property font caption: type(12, Font.Normal)
    readonly property font captionSemibold: type(12, Font.DemiBold)
    readonly property font title: type(26, Font.DemiBold)
    readonly property font title2: type(20, Font.DemiBold)
    readonly property double symbolSize: scaled(16)
    readonly property double smallSymbolSize: scaled(12)
    /// One point, the unit of sizes that belong to type, in pixels. Screens have more of them to the
    /// inch than the 72 of old.
    readonly property double point: scaled(12) / 10

    /// A length in pixels that scales with the desktop's text.
    function scaled(pixels: double): double {
        return Math.round(pixels * Appearance.textScale);
    }

    /// The desktop's font, `pixels` high at the default text size.
    function type(pixels: double, weight: int): font {
        return Qt.font({
            family: Appearance.fontFamily,
            pixelSize: Math.max(1, root.scaled(pixels)),
            weight: weight
        });
    }
}
