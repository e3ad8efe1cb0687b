#pragma once

#include "core/launch_context.h"
#include "model/defaults_store.h"
#include "model/local_zone.h"
#include "model/shared_store.h"
#include "providers/claude/claude_quota_source.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tallyvane::app {

/// Where the output is coloured: $NO_COLOR, $CLICOLOR_FORCE and $TERM.
enum class ColourUse { never, onTerminal, always };

/// The program's settings from its environment, read once at start-up. Paths are absolute; relative
/// ones count as not set.
struct Environment {
    model::StoreLocations locations;
    std::filesystem::path home;                                 ///< $HOME, or the user database's
    std::vector<std::filesystem::path> systemConfigDirectories; ///< $XDG_CONFIG_DIRS
    QStringList searchPath; ///< the folders of $PATH; the standard ones if there are none
    std::filesystem::path runtimeDirectory; ///< $XDG_RUNTIME_DIR; may be empty
    QString currentDesktop;                 ///< $XDG_CURRENT_DESKTOP; may be empty
    QString activationToken; ///< from the launcher, for the window system; may be empty
    QString x11Display;      ///< $DISPLAY; may be empty
    QString waylandDisplay;  ///< $WAYLAND_DISPLAY; may be empty
    core::LaunchContext launchContext;
    providers::NetworkVariables network;
    std::filesystem::path codexHome;       ///< $CODEX_HOME; may be empty
    std::filesystem::path claudeDirectory; ///< $CLAUDE_CONFIG_DIR; may be empty
    QStringList languages;  ///< of texts, POSIX locales by preference; none for those of the source
    std::string timeLocale; ///< the POSIX locale in which times are written
    model::LocalZone zone;  ///< follows $TZ or /etc/localtime
    ColourUse colour = ColourUse::onTerminal;
    bool hasDumbTerminal = false; ///< which takes text alone
};

[[nodiscard]] Environment readEnvironment();

/// The preferences and token baselines.
[[nodiscard]] model::DefaultsStore openDefaults(const Environment& environment);

/// The provider that alone is shown according to the preferences.
[[nodiscard]] std::optional<model::AIProvider> onlyProvider(const Environment& environment);

} // namespace tallyvane::app
