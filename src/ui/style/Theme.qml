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

    /// Whether borders and text have a contrast of 7 or more. Colours that stand for something then
    /// get an outline, a pattern or a weight beside them.
    readonly property bool isHighContrast: Appearance.isHighContrast
    /// The least contrast of a symbol or an edge and its ground.
    readonly property double symbolContrast: isHighContrast ? 7 : 3

    // Surfaces, from back to front.
    readonly property color window: pick("#f6f6f8", "#202124", "#ffffff", "#000000")
    readonly property color panel: pick("#fcfcfd", "#2a2b2f", "#ffffff", "#000000")
    readonly property color card: pick("#ffffff", "#2a2b2f", "#ffffff", "#000000")
    readonly property color outline: pick("#1f000000", "#1fffffff", "#000000", "#ffffff")
    readonly property color divider: pick("#18000000", "#1cffffff", "#404040", "#c8c8c8")
    readonly property color cardShadow: pick("#08000000", "#18000000", "transparent", "transparent")
    readonly property color scrim: isDark ? "#8c000000" : "#4d000000"

    // Ink. The first two are readable as small text on every surface, the third as a symbol.
    readonly property color text: pick("#1c1c1f", "#f3f3f5", "#000000", "#ffffff")
    readonly property color secondaryText: pick("#5d5e66", "#b6b7bd", "#26262a", "#e4e4e8")
    readonly property color tertiaryText: pick("#82848d", "#8e9098", "#404040", "#c8c8c8")
    readonly property color accent: Appearance.accentInk
    readonly property color destructive: pick("#b3201a", "#ff9b94", "#7a0d08", "#ffc9c5")
    readonly property color success: pick("#1f9d43", "#30d158", "#0a5220", "#6be88c")
    readonly property color warning: pick("#c25e00", "#ffb340", "#6b3200", "#ffc870")
    readonly property color notice: Qt.alpha(warning, isDark ? 0.14 : 0.1)
    readonly property color indigo: pick("#5856d6", "#8b8af5", "#35339e", "#b9b8ff")

    // Quota bars and their figures.
    readonly property color quotaAmple: isDark ? Qt.rgba(0.188, 0.82, 0.345, 1) : Qt.rgba(0.204, 0.78, 0.349, 1)
    readonly property color quotaLow: isDark ? Qt.rgba(1, 0.839, 0.039, 1) : Qt.rgba(0.91, 0.639, 0, 1)
    readonly property color quotaTrack: pick("#16000000", "#2cffffff", "transparent", "transparent")
    /// The lines of a pattern on any of the colours that stand for something.
    readonly property color hatching: "#000000"

    // Controls.
    readonly property color control: isDark ? "#1affffff" : "#0d000000"
    readonly property color controlHovered: isDark ? "#2affffff" : "#16000000"
    readonly property color controlPressed: isDark ? "#22ffffff" : "#22000000"
    readonly property color controlOutline: isHighContrast ? outline : "transparent"
    readonly property color rowHovered: isDark ? "#12ffffff" : "#0a000000"
    readonly property color accentFill: Appearance.accentFill
    readonly property color whiteText: "#ffffff"
    readonly property color switchOff: "#59808080"
    readonly property color knob: "#ffffff"
    readonly property color knobShadow: "#38000000"
    readonly property color segment: pick("#ffffff", "#5a5c63", "#ffffff", "#000000")
    readonly property double disabledOpacity: isHighContrast ? 0.7 : 0.4

    // Distances, in pixels.
    readonly property double smallSpacing: 4
    readonly property double spacing: 8
    readonly property double largeSpacing: 12
    readonly property double padding: 14
    readonly property double pageMargin: 24
    readonly property double smallRadius: 6
    readonly property double radius: 8
    readonly property double largeRadius: 12
    readonly property double focusWidth: isHighContrast ? 3 : 2
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

    function pick(light: color, dark: color, highLight: color, highDark: color): color {
        return isHighContrast ? (isDark ? highDark : highLight) : (isDark ? dark : light);
    }

    /// `colour`, if need be changed until a symbol or an edge in it can be seen on `ground`.
    function distinct(colour: color, ground: color): color {
        return Appearance.readable(colour, ground, symbolContrast);
    }

    /// The ink and the ground of a badge in `colour` on a card.
    function badgeGround(colour: color): color {
        return Qt.tint(card, Qt.alpha(colour, 0.14));
    }
    function badgeInk(colour: color): color {
        return distinct(colour, badgeGround(colour));
    }

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
