#include "core/launch_at_login.h"

namespace tallyvane::core {

bool launchesAtLogin(const platform::LoginItem& item) {
    return item.status() == platform::LoginItemStatus::enabled;
}

std::expected<void, QString> setLaunchAtLogin(platform::LoginItem& item, bool wanted) {
    if (launchesAtLogin(item) == wanted) {
        return {};
    }
    return wanted ? item.enable() : item.disable();
}

bool takeLaunchQuestion(model::DefaultsStore& defaults, const LaunchContext& context) {
    const QString hasAsked = QStringLiteral("hasAskedLaunchAtLogin");
    if (context.isTestHost || context.isFixtureMode || defaults.flag(hasAsked)) {
        return false;
    }
    (void)defaults.setFlag(hasAsked, true);
    return true;
}

} // namespace tallyvane::core
