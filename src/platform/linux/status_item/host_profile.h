#pragma once

#include <QtCore/QByteArrayView>

namespace tallyvane::platform {

/// In which form a status host draws an item's picture well.
enum class IconForm {
    pixmaps, ///< pixmaps alone: a name would be drawn in the wrong ink, or not at all
    name,    ///< the name of a symbolic file in the item's icon folder; the host recolours it
    path,    ///< the absolute path of a symbolic file; pixmaps are not drawn
};

/// What the program on the other side of the status area can do. The values of a fresh one suit a
/// host that is not known.
struct HostProfile {
    bool showsLabel = false;      ///< else the figure belongs into the picture
    bool hasLabelProperty = true; ///< false: a label, even an empty one, would hide the picture
    bool hasTrustedCoordinates = false; ///< whether a click's position is one on the screen
    IconForm iconForm = IconForm::pixmaps;

    bool operator==(const HostProfile&) const = default;
};

/// The profile of the host whose process has this name, as in /proc/PID/comm without the line's
/// end (the kernel cuts it to 15 bytes). Seen in GNOME Shell 43 with the AppIndicator extension,
/// Plasma 5.27, xfce4-panel 4.18, lxqt-panel 1.2, waybar 0.9, mate-panel 1.27 and the Ayatana
/// indicator service.
[[nodiscard]] HostProfile hostProfileOf(QByteArrayView processName);

} // namespace tallyvane::platform
