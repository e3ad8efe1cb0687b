#include "core/launch_context.h"

#include <algorithm>
#include <dlfcn.h>

namespace tallyvane::core {

LaunchContext launchContext(const QStringList& environment) {
    const auto namesTestHost = [](const QString& entry) {
        return entry.startsWith(u"XCTest") || entry.startsWith(u"XCInjectBundleInto=");
    };
    return {.isTestHost = std::ranges::any_of(environment, namesTestHost) ||
                          ::dlsym(RTLD_DEFAULT, "OBJC_CLASS_$_XCTestCase") != nullptr,
            .isFixtureMode = environment.contains(QStringLiteral("GAUGEWELL_USE_FIXTURES=1"))};
}

} // namespace tallyvane::core
