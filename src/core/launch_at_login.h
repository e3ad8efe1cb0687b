#pragma once

#include "core/launch_context.h"
#include "model/defaults_store.h"
#include "platform/login_item.h"

namespace tallyvane::core {

[[nodiscard]] bool launchesAtLogin(const platform::LoginItem& item);

/// Changes the login item unless it is in the wanted state already. The error is a message for the
/// user; after one, read the state again.
[[nodiscard]] std::expected<void, QString> setLaunchAtLogin(platform::LoginItem& item, bool wanted);

/// Whether to ask the user, now that the main window is shown, about launching at login. True only
/// the first time, which is recorded as "hasAskedLaunchAtLogin"; always false under a test host or
/// in fixture mode.
[[nodiscard]] bool takeLaunchQuestion(model::DefaultsStore& defaults, const LaunchContext& context);

} // namespace tallyvane::core
