#pragma once

#include "core/launch_context.h"
#include "model/defaults_store.h"
#include "platform/login_item.h"

namespace tallyvane::core {

[[nodiscard]] bool launchesAtLogin(const platform::LoginItem& item);

/// Asks the desktop for a change only when there is one to make. After an error, which is a text
/// for the user, the state is to be read again.
[[nodiscard]] std::expected<void, QString> setLaunchAtLogin(platform::LoginItem& item, bool wanted);

/// Whether the main window, now shown, is to ask if the program shall start at login. True once in
/// a lifetime, which "hasAskedLaunchAtLogin" remembers, and never under a test host or in fixture
/// mode.
[[nodiscard]] bool takeLaunchQuestion(model::DefaultsStore& defaults, const LaunchContext& context);

} // namespace tallyvane::core
