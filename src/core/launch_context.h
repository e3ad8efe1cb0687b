#pragma once

#include <QtCore/QStringList>

namespace tallyvane::core {

/// How the program was started.
struct LaunchContext {
    bool isTestHost = false;    ///< in a test runner: nothing starts automatically
    bool isFixtureMode = false; ///< shows sample figures and never fetches automatically
};

/// Reads the context from "NAME=value" entries. A test host is recognised by a variable whose name
/// begins with "XCTest", by the variable "XCInjectBundleInto", or by a class XCTestCase in this
/// process; fixture mode by GAUGEWELL_USE_FIXTURES=1 exactly.
[[nodiscard]] LaunchContext launchContext(const QStringList& environment);

} // namespace tallyvane::core
