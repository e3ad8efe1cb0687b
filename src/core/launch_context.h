#pragma once

#include <QtCore/QStringList>

namespace tallyvane::core {

/// How this run of the program was started.
struct LaunchContext {
    bool isTestHost = false;    ///< inside a test runner, where nothing happens by itself
    bool isFixtureMode = false; ///< shows made-up figures and fetches none by itself

    bool operator==(const LaunchContext&) const = default;
};

/// Reads the context from an environment of "NAME=value" entries: a test host by a name that begins
/// with "XCTest", the name "XCInjectBundleInto", or a class XCTestCase in this process; fixture
/// mode by GAUGEWELL_USE_FIXTURES=1 exactly.
[[nodiscard]] LaunchContext launchContext(const QStringList& environment);

} // namespace tallyvane::core
