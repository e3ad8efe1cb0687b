#include "core/launch_at_login.h"
#include "model/shared_store.h"
#include "platform/login_item.h"
#include "support/test_main.h"

using namespace tallyvane;
using namespace Qt::StringLiterals;

namespace {

struct RefusingLoginItem final : platform::LoginItem {
    explicit RefusingLoginItem(platform::LoginItemStatus fixed) : state(fixed) {}

    [[nodiscard]] platform::LoginItemStatus status() const override { return state; }
    std::expected<void, QString> enable() override { return std::unexpected(u"on"_s); }
    std::expected<void, QString> disable() override { return std::unexpected(u"off"_s); }

    platform::LoginItemStatus state;
};

} // namespace

class StartTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void readsTheContext() {
        const auto context = [](const char* entry) {
            return core::launchContext({QString::fromLatin1(entry)});
        };
        for (const char* entry : {"XCTestConfigurationFilePath=", "XCInjectBundleInto=/x"}) {
            QVERIFY2(context(entry).isTestHost && !context(entry).isFixtureMode, entry);
        }
        for (const char* entry :
             {"XCInjectBundleIntoOther=/x", "MY_XCTest=1", "HOME=/", "GAUGEWELL_USE_FIXTURES=11"}) {
            QVERIFY2(!context(entry).isTestHost && !context(entry).isFixtureMode, entry);
        }
        QVERIFY(context("GAUGEWELL_USE_FIXTURES=1").isFixtureMode);
    }

    void changesTheLoginItemOnlyIfNeeded() {
        using enum platform::LoginItemStatus;
        for (const auto status : {enabled, notRegistered, requiresApproval, notFound}) {
            const bool isOn = status == enabled;
            RefusingLoginItem item(status);
            QVERIFY(core::setLaunchAtLogin(item, isOn));
            QCOMPARE(core::setLaunchAtLogin(item, !isOn).error(), isOn ? u"off"_s : u"on"_s);
        }
    }

    void asksOnce() {
        const QTemporaryDir config;
        const auto path = std::filesystem::path(config.path().toStdString()) / "defaults";
        const auto openDefaults = [&] { return model::DefaultsStore::openFirst(path, path); };
        model::DefaultsStore defaults = openDefaults();
        QVERIFY(!core::takeLaunchQuestion(defaults, {.isTestHost = true}));
        QVERIFY(!core::takeLaunchQuestion(defaults, {.isFixtureMode = true}));
        QVERIFY(core::takeLaunchQuestion(defaults, {}));
        model::DefaultsStore nextRun = openDefaults();
        QVERIFY(nextRun.flag(u"hasAskedLaunchAtLogin"_s));
        QVERIFY(!core::takeLaunchQuestion(nextRun, {}));
    }
};

TALLYVANE_TEST(StartTest)
#include "start_test.moc"
