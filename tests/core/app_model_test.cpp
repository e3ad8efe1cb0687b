#include "core/refresh_world.h"
#include "support/test_main.h"

#include <QtTest/QSignalSpy>

#include <list>

using namespace tallyvane;
using namespace tallyvane::tests;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using model::QuotaSyncState;
using providers::AskedBy;
using Outcome = core::RefreshReport::Outcome;
using Place = providers::QuotaFailure::Place;

namespace {

/// Both providers synced an hour ago, with a status message.
model::QuotaSnapshot syncedSnapshot(model::Timestamp now, double usedPercent) {
    model::QuotaSnapshot snapshot = model::placeholderSnapshot(now - 1h);
    for (model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        entry.week = model::QuotaWindowSnapshot{.usedPercent = usedPercent};
        entry.syncedAt = now - 1h;
        entry.syncState = QuotaSyncState::current;
        entry.statusMessage = u"old"_s;
    }
    return snapshot;
}

} // namespace

class AppModelTest : public HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void publishesAndSaves() {
        World world;
        world.assistants[0].used = 42;
        world.assistants[1].used = 3;
        Writer writer(world);
        core::AppModel& model = writer.model;
        QVERIFY(model.snapshot() == model::placeholderSnapshot(world.clock.now()));
        const QSignalSpy published(&model, &core::AppModel::snapshotChanged);

        world.isHoldingAnswers = true;
        const auto first = model.refresh(AskedBy::user);
        QCOMPARE(writer.refresh(), Outcome::alreadyRunning);
        std::list<QCoro::Task<core::RefreshReport>> joined;
        for (int i = 0; i < 3; ++i) {
            joined.push_back(model.refreshOrJoin());
        }
        // Those who joined resume from the event loop, when the next refresh may have started.
        bool isNextStarted = false;
        connect(&model, &core::AppModel::isRefreshingChanged, this, [&] {
            if (!model.isRefreshing() && !std::exchange(isNextStarted, true)) {
                joined.push_back(model.refreshOrJoin());
            }
        });
        world.letAnswer();
        const core::RefreshReport report = QCoro::waitFor(first);
        for (const auto& each : joined) {
            QCOMPARE(QCoro::waitFor(each).outcome, Outcome::published);
        }

        QCOMPARE(report.outcome, Outcome::published);
        QVERIFY(report.failures.empty() && !model.lastError() && !model.isRefreshing());
        QCOMPARE(model.snapshot().providers.at(0).week->usedPercent, 42);
        QCOMPARE(model.snapshot().providers.at(1).week->usedPercent, 3);
        QVERIFY(writer.store.loadSnapshot() == model.snapshot());
        QCOMPARE(published.count(), 1);
        QCOMPARE(writer.widgetCentre.calls.join(u' '), u"GaugewellWidget all GaugewellWidget all");
    }

    void keepsOldFiguresWhenProvidersFail() {
        const auto check = [](bool hasSynced, Place claudePlace, std::optional<QString> status) {
            World world;
            auto& [codex, claude] = world.assistants;
            codex.failure = {.text = model::Message("Codex failed.")};
            claude.failure = {.text = model::Message("Claude failed."),
                              .shownAt = claudePlace,
                              .shortText = status};
            codex.isFailing = claude.isFailing = true;
            auto before = syncedSnapshot(world.clock.now(), 7);
            before = hasSynced ? before : model::placeholderSnapshot(before.updatedAt);
            Writer writer(world);
            QVERIFY(writer.store.saveSnapshot(before));

            const auto task = writer.model.refresh(AskedBy::user);
            QCOMPARE(QCoro::waitFor(task).failures.size(), 2U);
            QCOMPARE(writer.model.lastError(), codex.failure.text);
            QVERIFY(writer.model.failures().at(model::AIProvider::claude) == claude.failure);
            const model::QuotaSnapshot after = writer.model.snapshot();
            for (std::size_t i = 0; i < 2; ++i) {
                auto expected = before.providers[i];
                using enum QuotaSyncState;
                expected.syncState = hasSynced ? pending : unavailable;
                expected.statusMessage = i == 1 ? status : expected.statusMessage;
                QVERIFY(after.providers[i] == expected);
            }
            QVERIFY(writer.store.loadSnapshot() == after);
            const core::Failures stored = Writer(world).model.failures();
            QCOMPARE(stored.size(), status == u"Network error"_s ? 1U : 0U);
            QVERIFY(stored.empty() ||
                    stored.at(model::AIProvider::claude).sentences().contains(u"doctor"));

            codex.isFailing = false;
            QCOMPARE(writer.refresh(), Outcome::published);
            QCOMPARE(writer.model.lastError().has_value(), claudePlace == Place::errorLine);
        };
        check(true, Place::besideFigures, u"Network error"_s);
        check(true, Place::besideFigures, std::nullopt);
        check(false, Place::besideFigures, u"Network error"_s);
        check(true, Place::errorLine, u"old"_s);
    }

    void takesTurnsWithOthers() {
        World world;
        Writer writer(world);
        for (const auto& [held, outcome] :
             {std::pair{59s, Outcome::published}, std::pair{61s, Outcome::notSaved}}) {
            auto lock = writer.store.tryLock();
            const auto refresh = writer.model.refresh(AskedBy::user);
            for (auto time = 0ms; time < held + 1s; time += 100ms) {
                world.clock.advance(100ms);
                QCoreApplication::processEvents();
                if (time == held) {
                    lock->reset();
                }
            }
            QCOMPARE(QCoro::waitFor(refresh).outcome, outcome);
        }
        QVERIFY(writer.model.lastError()->text().contains(u"Another program"));
    }

    /// A snapshot that is only shown must leave no trace in the files.
    void storesNothingMadeUp() {
        for (const bool isAnythingStored : {false, true}) {
            World world;
            world.assistants[0].isFailing = true;
            world.assistants[1].used = 8;
            const auto stored = syncedSnapshot(world.clock.now(), 7);
            QVERIFY(!isAnythingStored || Writer(world).store.saveSnapshot(stored));
            Writer writer(world, "UTC", syncedSnapshot(world.clock.now(), 1));
            QCOMPARE(writer.refresh(), Outcome::published);
            QVERIFY(writer.model.snapshot() == writer.store.loadSnapshot());
            QCOMPARE(writer.model.snapshot().providers[0].week,
                     isAnythingStored ? stored.providers[0].week : std::nullopt);
            QCOMPARE(writer.model.history().points[1].estimatedQuotaConsumed,
                     isAnythingStored ? 1.0 : 0.0);
        }
    }

    void showsNothingThatIsNotSaved() {
        for (const char* name : {"quota-snapshot.json", "usage-history.json"}) {
            World world;
            Writer writer(world);
            const auto inTheWay = writer.store.baseURL() / name;
            std::filesystem::create_directory(inTheWay);
            const auto before = writer.model.snapshot();
            world.assistants[0].used = 42;
            world.isHoldingAnswers = true;
            const auto refresh = writer.model.refresh(AskedBy::user);
            const auto joined = writer.model.refreshOrJoin();
            world.letAnswer();
            QCOMPARE(QCoro::waitFor(refresh).outcome, Outcome::notSaved);
            QCOMPARE(QCoro::waitFor(joined).notSaved, writer.model.lastError());
            QVERIFY2(writer.model.lastError()->text().contains(QLatin1StringView(name)), name);
            QVERIFY(writer.model.snapshot() == before && !writer.model.isRefreshing());
            QVERIFY(writer.model.history().points.empty());
            QVERIFY(writer.widgetCentre.calls.isEmpty());

            std::filesystem::remove(inTheWay);
            QCOMPARE(writer.refresh(), Outcome::published);
            QVERIFY(!writer.model.lastError());
        }
    }

    /// Nobody waits for a whole count after a failed save.
    void stopsCounting() {
        constexpr int files = 50;
        constexpr qint64 size = 24'000'000;
        World world;
        Writer writer(world);
        const auto logs = world.root / ".codex" / "sessions";
        std::filesystem::create_directories(logs);
        for (int i = 0; i < files; ++i) {
            QFile log(logs / (std::to_string(i) + ".jsonl"));
            QVERIFY(log.open(QIODevice::WriteOnly) && log.resize(size));
        }
        std::filesystem::create_directory(writer.store.baseURL() / "quota-snapshot.json");
        const auto bytesRead = [] {
            return readFile(u"/proc/self/io"_s).split('\n')[0].split(' ')[1].toLongLong();
        };
        const qint64 before = bytesRead();
        QCOMPARE(writer.refresh(), Outcome::notSaved);
        QVERIFY(bytesRead() - before < files * size / 2);
    }

    void remembersSettingsAndPostsAReset() {
        World world;
        Writer writer(world);
        const QSignalSpy changed(&writer.model, &core::AppModel::notificationSettingsChanged);
        const notify::NotificationSettings anyTime{.enabled = true, .windows = {{.allDay = true}}};
        writer.model.setNotificationSettings(anyTime);
        writer.model.setNotificationSettings(anyTime);
        QCOMPARE(changed.count(), 1);
        writer.model.setAppearance(model::AppAppearance::dark);
        QCOMPARE(Writer(world).model.appearance(), model::AppAppearance::dark);
        QVERIFY(Writer(world).model.notificationSettings() == anyTime);
        for (const double used : {42, 3}) {
            QVERIFY(writer.notificationCentre.posts.isEmpty());
            world.assistants[0].used = used;
            QCOMPARE(writer.refresh(), Outcome::published);
        }
        QCOMPARE(writer.notificationCentre.posts.size(), 1);
        QCOMPARE(writer.notificationCentre.posts[0].identifier, u"reset-codex-1772323200.0");
    }

    void hidesAProvider() {
        World world;
        auto& [codex, claude] = world.assistants;
        codex.used = claude.used = 42;
        codex.failure = {.text = model::Message("Codex failed.")};
        Writer writer(world);
        core::AppModel& model = writer.model;
        model.setNotificationSettings({.enabled = true, .windows = {{.allDay = true}}});
        QCOMPARE(writer.refresh(), Outcome::published);
        codex.isFailing = true;
        QCOMPARE(writer.refresh(), Outcome::published);
        QCOMPARE(model.lastError(), codex.failure.text);

        // Even in the course of a refresh, whose answer is then stored but not shown.
        codex.isFailing = false;
        codex.used = 3;
        world.isHoldingAnswers = true;
        const auto held = model.refresh(AskedBy::user);
        model.setOnlyProvider(model::AIProvider::claude);
        world.letAnswer();
        const auto isClaudeAlone = [&] {
            const auto shown = model.snapshot().providers;
            const auto points = model.history().points;
            return shown.size() == 1 && shown[0].provider == model::AIProvider::claude &&
                   points.size() == 1 && points[0].provider == model::AIProvider::claude &&
                   model.failures().empty() && !model.lastError();
        };
        QVERIFY(isClaudeAlone());
        QCOMPARE(QCoro::waitFor(held).outcome, Outcome::published);
        QVERIFY(isClaudeAlone() && writer.notificationCentre.posts.isEmpty());
        const auto stored = model.wholeSnapshot().providers.at(0);
        QCOMPARE(stored.week->usedPercent, 3);
        codex.used = 50;
        QCOMPARE(writer.refresh(), Outcome::published);
        QCOMPARE(codex.requests.size(), 3);
        QVERIFY(isClaudeAlone() && Writer(world).model.snapshot() == model.snapshot());
        QVERIFY(writer.store.loadSnapshot()->providers.at(0) == stored);
        QCOMPARE(history::loadHistory(writer.store)->points.size(), 2U);

        Writer(world).model.setOnlyProvider(std::nullopt);
        Writer(world).model.setWarnsOfLowQuota(true);
        model.reloadPreferences();
        QVERIFY(model.warnsOfLowQuota());
        QVERIFY(model.snapshot() == writer.store.loadSnapshot());
        QCOMPARE(model.history().points.size(), 2U);
    }

    void knowsTheRatesOfLate() {
        World world;
        Writer writer(world);
        auto& codex = world.assistants[0];
        codex.resetsAt = world.clock.now() + 100h;
        for (const double used : {10.0, 20.0}) {
            QVERIFY(writer.model.recentRates().empty());
            codex.used = used;
            QCOMPARE(writer.refresh(), Outcome::published);
            world.clock.advance(23h);
        }
        QCOMPARE(writer.model.recentRates().size(), 1U);
    }

    void refreshesEveryFiveMinutes() {
        World world;
        Writer writer(world);
        const auto& requests = world.assistants[1].requests;
        writer.model.startAutoRefresh({.isTestHost = true});
        writer.model.startAutoRefresh({.isFixtureMode = true});
        QVERIFY(!writer.model.isRefreshing());
        writer.model.startAutoRefresh({});
        TALLYVANE_TRY_COMPARE(world.clock.pendingAlarms(), 1U);
        world.clock.advance(299s);
        QVERIFY(!writer.model.isRefreshing());
        QCOMPARE(writer.refresh(), Outcome::published);
        QCOMPARE(world.clock.pendingAlarms(), 1U);
        world.clock.suspend(1h);
        TALLYVANE_TRY_COMPARE(world.clock.pendingAlarms(), 1U);
        QCOMPARE(requests, (QList{AskedBy::timer, AskedBy::user, AskedBy::timer}));
    }
};

TALLYVANE_TEST(AppModelTest)
#include "app_model_test.moc"
