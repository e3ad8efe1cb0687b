#include "platform/linux/status_item/host_profile.h"

#include <algorithm>
#include <array>

namespace tallyvane::platform {

namespace {

struct KnownHost {
    QByteArrayView processName;
    HostProfile profile;
};

constexpr HostProfile plasma{.hasTrustedCoordinates = true, .iconForm = IconForm::name};
constexpr HostProfile xfce{.hasTrustedCoordinates = true, .hasXfceColours = true};
constexpr HostProfile mate{.hasLabelProperty = false};

// Plasma's watcher runs in its daemon, not in the shell; MATE's in the applet if that has its own
// process.
constexpr std::array knownHosts{
    KnownHost{"gnome-shell",
              {.showsLabel = true, .hasTrustedCoordinates = true, .iconForm = IconForm::name}},
    KnownHost{"kded5", plasma},
    KnownHost{"kded6", plasma},
    KnownHost{"plasmashell", plasma},
    KnownHost{"xfce4-panel", xfce},
    KnownHost{"wrapper-2.0", xfce}, // its plugins since 4.20
    KnownHost{"lxqt-panel", {.hasTrustedCoordinates = true}},
    KnownHost{"waybar", {.isUsuallyDark = true}},
    KnownHost{"mate-panel", mate},
    KnownHost{"notification-ar", mate},
    KnownHost{"ayatana-indicat", {.showsLabel = true, .iconForm = IconForm::path}},
};

} // namespace

HostProfile hostProfileOf(QByteArrayView processName) {
    // A plugin of xfce4-panel in its own process, such as "panel-6-systray".
    if (processName.startsWith("panel-")) {
        return xfce;
    }
    const auto* host = std::ranges::find(knownHosts, processName, &KnownHost::processName);
    return host != knownHosts.end() ? host->profile : HostProfile{};
}

} // namespace tallyvane::platform
