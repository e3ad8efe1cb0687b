#pragma once

#include "core/launch_context.h"
#include "model/shared_store.h"

#include <filesystem>
#include <string>

namespace tallyvane::app {

/// All that the program takes from its environment, read once at its start.
struct Environment {
    model::StoreLocations locations;
    std::filesystem::path home;
    core::LaunchContext launchContext;
    std::string timeLocale;  ///< the POSIX locale in which times are written
    bool wantsColour = true; ///< false under NO_COLOR and on a dumb terminal
};

[[nodiscard]] Environment readEnvironment();

} // namespace tallyvane::app
