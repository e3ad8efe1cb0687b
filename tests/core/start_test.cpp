#include "core/fixtures.h"
#include "core/launch_at_login.h"
#include "history/calendar_days.h"
#include "model/shared_store.h"
#include "support/test_main.h"

#include <set>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::LoginItemStatus;

namespace {

/// A login item that only says which change it was asked for, as an error.
struct RefusingLoginItem final : platform::LoginItem {
    explicit RefusingLoginItem(LoginItemStatus fixed) : current(fixed) {}

    LoginItemStatus status() const override { return current; }
    std::expected<void, QString> enable() override { return std::unexpected(u"enable"_s); }
    std::expected<void, QString> disable() override { return std::unexpected(u"disable"_s); }

    LoginItemStatus current;
};

} // namespace

class StartTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void readsTheContext() {
        const std::tuple<const char*, bool, bool> rows[] = {
            {"HOME=/", false, false},
            {"GAUGEWELL_USE_FIXTURES=1", false, true},
            {"GAUGEWELL_USE_FIXTURES=11", false, false},
            {"XCTestConfigurationFilePath=", true, false},
            {"XCInjectBundleInto=/x", true, false},
            {"XCInjectBundleIntoOther=/x", false, false},
            {"MY_XCTest=1", false, false},
        };
        for (const auto& [entry, isTestHost, isFixtureMode] : rows) {
            const auto context = core::launchContext({QString::fromLatin1(entry)});
            QVERIFY2(context.isTestHost == isTestHost, entry);
            QVERIFY2(context.isFixtureMode == isFixtureMode, entry);
        }
    }

    void changesTheLoginItemOnlyIfNeeded() {
        using enum LoginItemStatus;
        for (const LoginItemStatus status : {enabled, notRegistered, requiresApproval, notFound}) {
            RefusingLoginItem item(status);
            const auto attempted = [&item](bool wanted) {
                const auto result = core::setLaunchAtLogin(item, wanted);
                return result ? QString() : result.error();
            };
            const bool isOn = status == enabled;
            QCOMPARE(attempted(true), isOn ? QString() : u"enable"_s);
            QCOMPARE(attempted(false), isOn ? u"disable"_s : QString());
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

    /// Across a change to summer time, when a day has 23 hours.
    void datesTheFixtures() {
        const model::LocalZone zone{QTimeZone("Europe/Berlin")};
        const model::Timestamp now = std::chrono::sys_days{std::chrono::year{2026} / 3 / 28} + 20h;
        const auto providers = core::fixtureSnapshot(now, zone).providers;
        QCOMPARE(providers.size(), 2U);
        QCOMPARE(providers[0].week->usedPercent, 68.0);
        QCOMPARE(providers[0].week->resetsAt, now + 47h);
        QCOMPARE(providers[1].fiveHour->resetsAt, now + 62min);
        QCOMPARE(providers[1].syncedAt, now - 2min);

        const auto points = core::fixtureHistory(now, zone).points;
        QCOMPARE(points.size(), 28U);
        std::set<QDate> days;
        for (const history::UsageHistoryPoint& point : points) {
            days.insert(history::localDay(point.date, zone));
        }
        QCOMPARE(days.size(), 14U);
        QCOMPARE(points[7].estimatedQuotaConsumed, 4.0);
        QCOMPARE(points[26].estimatedLocalTokens, 1'680'000);
    }
};

TALLYVANE_TEST(StartTest)
#include "start_test.moc"
