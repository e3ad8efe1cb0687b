#pragma once

#include <QtCore/QByteArrayView>

namespace tallyvane::platform {

/// The form of an item's picture that a status host draws well.
enum class IconForm {
    pixmaps, ///< only pixmaps: a named icon has the wrong colour or is not drawn
    name,    ///< the name of a symbolic file in the item's icon folder; the host recolours it
    path,    ///< the absolute path of a symbolic file; pixmaps are not drawn
};

/// The abilities of the program that shows the status area. The defaults suit unknown hosts.
struct HostProfile {
    bool showsLabel = false;      ///< if not, the picture must contain the figure
    bool hasLabelProperty = true; ///< false: a label, even an empty one, would hide the picture
    /// Whether a click's position is one on the screen, in its pixels.
    bool hasTrustedCoordinates = false;
    bool hasXfceColours = false; ///< whether its panel is as light as Xfce's settings say
    bool isUsuallyDark = false;  ///< whether its panel is dark unless the user prefers light ones
    IconForm iconForm = IconForm::pixmaps;

    bool operator==(const HostProfile&) const = default;
};

/// The profile of the host whose process has this name (/proc/PID/comm, which the kernel cuts to 15
/// bytes). Observed with GNOME Shell 43 with the AppIndicator extension,
/// Plasma 5.27, xfce4-panel 4.18 and 4.20, lxqt-panel 1.2, waybar 0.9, mate-panel 1.27 and the
/// Ayatana indicator service.
[[nodiscard]] HostProfile hostProfileOf(QByteArrayView processName);

} // namespace tallyvane::platform
