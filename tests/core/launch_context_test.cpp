#include "core/launch_context.h"
#include "support/test_main.h"

using tallyvane::core::LaunchContext;
using tallyvane::core::launchContext;

class LaunchContextTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void reads() {
        const std::pair<const char*, LaunchContext> rows[] = {
            {"HOME=/", {}},
            {"GAUGEWELL_USE_FIXTURES=1", {.isFixtureMode = true}},
            {"GAUGEWELL_USE_FIXTURES=true", {}},
            {"GAUGEWELL_USE_FIXTURES=", {}},
            {"GAUGEWELL_USE_FIXTURES=11", {}},
            {"XCTestConfigurationFilePath=", {.isTestHost = true}},
            {"XCInjectBundleInto=/x", {.isTestHost = true}},
            {"XCInjectBundleIntoOther=/x", {}},
            {"MY_XCTest=1", {}},
        };
        for (const auto& [entry, expected] : rows) {
            QVERIFY2(launchContext({QString::fromLatin1(entry)}) == expected, entry);
        }
    }
};

TALLYVANE_TEST_MAIN(LaunchContextTest)
#include "launch_context_test.moc"
