#include "core/app_model.h"
#include "core/auto_refresh.h"
#include "providers/claude/claude_quota_client.h"
#include "providers/codex/codex_quota_client.h"
#include "support/fake_notification_centre.h"
#include "support/fake_secret_store.h"
#include "support/home_files.h"
#include "support/manual_clock.h"
#include "support/test_main.h"
#include "support/tls_server.h"

#include <QtTest/QSignalSpy>

#include <list>
#include <sys/wait.h>

using namespace tallyvane;
using namespace std::chrono_literals;
using model::AIProvider;
using model::QuotaSyncState;
using providers::AskedBy;
using tests::httpReply;

namespace {

constexpr model::Timestamp start = std::chrono::sys_days{std::chrono::year{2026} / 4 / 10};

struct RecordingWidgetCentre final : platform::WidgetCentre {
    QStringList calls;
    void reloadTimelines(const QString& kind) override { calls << kind; }
    void reloadAllTimelines() override { calls << QStringLiteral("all"); }
};

/// An AppModel with its real collaborators in a home of its own: the Codex CLI is a shell script
/// there, the Claude service a server on loopback.
struct Desk {
    explicit Desk(const tests::TlsIdentity& identity, QList<tests::ScriptedReply> replies = {})
        : server(identity, std::move(replies)) {
        source.usageURL = server.url(QStringLiteral("/usage"));
        source.credentialsFile = root / "credentials.json";
        source.tls.emplace().setCaCertificates({identity.certificate});
    }

    void write(const char* name, const QByteArray& bytes) const {
        tests::writeFile(home.filePath(QString::fromLatin1(name)), bytes);
    }

    void signIn() const {
        write("credentials.json", R"({"claudeAiOauth":{"accessToken":"secret"}})");
    }

    /// One figure for both windows.
    void installCodex(int usedPercent) const {
        const QByteArray window = "{\"usedPercent\":" + QByteArray::number(usedPercent) + "}";
        write("codex", "#!/bin/sh\necho '{\"id\":1,\"result\":{\"rateLimits\":{\"primary\":" +
                           window + ",\"secondary\":" + window + "}}}'\ncat >/dev/null\n");
    }

    QTemporaryDir home;
    std::filesystem::path root{home.path().toStdString()};
    model::StoreLocations locations{.dataHome = root / "data", .configHome = root / "config"};
    tests::TlsServer server;
    tests::ManualClock clock{start};
    tests::FakeSecretStore secrets;
    RecordingWidgetCentre widgetCentre;
    model::SharedStore store{locations};
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(locations.defaultsSuite(), locations.standardDefaults());
    providers::ProcessRunner runner{clock};
    providers::CodexQuotaClient codexClient{
        {home.filePath(QStringLiteral("codex"))}, runner, clock};
    providers::ClaudeQuotaSource source;
    history::LocalTokenEstimator tokenEstimator{root};
    tests::FakeNotificationCentre notificationCentre;
    notify::QuotaNotifier notifier{notificationCentre};
};

/// The part of a desk that is made when its files and the server are set up.
struct Running {
    explicit Running(Desk& desk, std::optional<model::QuotaSnapshot> shown = std::nullopt)
        : claudeClient(desk.source, desk.secrets, desk.clock),
          model({.store = desk.store,
                 .defaults = desk.defaults,
                 .quotaClients = {desk.codexClient, claudeClient},
                 .tokenEstimator = desk.tokenEstimator,
                 .notifier = desk.notifier,
                 .widgetCentre = desk.widgetCentre,
                 .clock = desk.clock,
                 .zone = model::LocalZone(QTimeZone::utc())},
                std::move(shown)) {}

    providers::ClaudeQuotaClient claudeClient;
    core::AppModel model;
};

/// Both providers synced an hour ago, with a message that a failure must not keep.
model::QuotaSnapshot syncedSnapshot() {
    model::QuotaSnapshot snapshot = model::placeholderSnapshot(start - 1h);
    for (model::ProviderQuotaSnapshot& entry : snapshot.providers) {
        entry.week = model::QuotaWindowSnapshot{.usedPercent = 7};
        entry.syncedAt = start - 1h;
        entry.syncState = QuotaSyncState::current;
        entry.statusMessage = QStringLiteral("old");
    }
    return snapshot;
}

} // namespace

class AppModelTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::TlsIdentity m_identity = tests::makeTlsIdentity();

private Q_SLOTS:
    /// A child that is still ending holds memory.
    void cleanup() {
        QTRY_VERIFY(::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT) != 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void publishesAndSaves() {
        Desk desk(m_identity, {httpReply(200, R"({"five_hour":{"utilization":3}})")});
        desk.installCodex(42);
        desk.signIn();
        Running running(desk);
        core::AppModel& model = running.model;
        QVERIFY(model.snapshot() == model::placeholderSnapshot(start));
        const QSignalSpy published(&model, &core::AppModel::snapshotChanged);
        const QSignalSpy refreshing(&model, &core::AppModel::isRefreshingChanged);

        auto first = model.refresh(AskedBy::user);
        QVERIFY(model.isRefreshing());
        QCOMPARE(QCoro::waitFor(model.refresh(AskedBy::user)).outcome,
                 core::RefreshReport::Outcome::alreadyRunning);
        auto joined = model.refreshOrJoin();
        const core::RefreshReport report = QCoro::waitFor(first);

        QCOMPARE(report.outcome, core::RefreshReport::Outcome::published);
        QVERIFY(QCoro::waitFor(joined));
        QVERIFY(report.failures.empty() && !model.lastError());
        const model::QuotaSnapshot snapshot = model.snapshot();
        QCOMPARE(snapshot.providers.size(), 2U);
        QCOMPARE(snapshot.providers[0].fiveHour->usedPercent, 42);
        QCOMPARE(snapshot.providers[1].fiveHour->usedPercent, 3);
        QVERIFY(desk.store.loadSnapshot() == snapshot);
        QCOMPARE(published.count(), 1);
        QCOMPARE(refreshing.count(), 2);
        QCOMPARE(desk.server.requests().size(), 1);
        const QStringList expected{QStringLiteral("GaugewellWidget"), QStringLiteral("all")};
        QCOMPARE(desk.widgetCentre.calls, expected);
    }

    /// They resume from the event loop, and by then the next refresh may run.
    void answersEveryoneWhoJoined() {
        Desk desk(m_identity);
        desk.installCodex(42);
        Running running(desk);
        core::AppModel& model = running.model;
        const auto first = model.refresh(AskedBy::user);
        std::list<QCoro::Task<bool>> joined;
        for (int i = 0; i < 3; ++i) {
            joined.push_back(model.refreshOrJoin());
        }
        std::optional<QCoro::Task<bool>> next;
        connect(&model, &core::AppModel::isRefreshingChanged, this, [&] {
            if (!model.isRefreshing() && !next) {
                next = model.refreshOrJoin();
                joined.push_back(model.refreshOrJoin());
            }
        });
        QTRY_VERIFY(next && next->isReady());
        QTRY_COMPARE(joined.size(), 4U);
        for (QCoro::Task<bool>& one : joined) {
            QVERIFY(QCoro::waitFor(one));
        }
    }

    void keepsWhatFailed_data() {
        QTest::addColumn<bool>("hasSynced");
        QTest::addColumn<int>("httpStatus"); // of the Claude service; 0: not signed in
        QTest::addColumn<QString>("message");
        QTest::newRow("not signed in") << true << 0 << QStringLiteral("Keychain auth");
        QTest::newRow("rate limited") << true << 429 << QStringLiteral("Rate limited");
        QTest::newRow("server error") << true << 500 << QString();
        QTest::newRow("never synced") << false << 429 << QStringLiteral("Rate limited");
    }

    void keepsWhatFailed() {
        QFETCH(bool, hasSynced);
        QFETCH(int, httpStatus);
        QFETCH(QString, message);
        Desk desk(m_identity, {httpReply(httpStatus, {})});
        if (httpStatus != 0) {
            desk.signIn();
        }
        const model::QuotaSnapshot before =
            hasSynced ? syncedSnapshot() : model::placeholderSnapshot(start);
        QVERIFY(desk.store.saveSnapshot(before));
        Running running(desk);

        const core::RefreshReport report = QCoro::waitFor(running.model.refresh(AskedBy::user));
        const model::QuotaSnapshot after = running.model.snapshot();
        QCOMPARE(report.failures.size(), 2U);
        QCOMPARE(running.model.lastError(), QStringLiteral("Could not find Codex CLI."));
        for (std::size_t i = 0; i < 2; ++i) {
            model::ProviderQuotaSnapshot expected = before.providers[i];
            expected.syncState = hasSynced ? QuotaSyncState::pending : QuotaSyncState::unavailable;
            if (expected.provider == AIProvider::claude) {
                expected.statusMessage = message.isEmpty() ? std::nullopt : std::optional(message);
            }
            QVERIFY(after.providers[i] == expected);
        }
        QVERIFY(desk.store.loadSnapshot() == after);
    }

    /// As two commands at once, or a command and the program without a bus: each gain counts once.
    void buildsUponWhatOthersStored() {
        Desk desk(m_identity);
        Running first(desk);
        Running second(desk);
        const auto refresh = [&](Running& running, int weekly) {
            desk.installCodex(weekly);
            return QCoro::waitFor(running.model.refresh(AskedBy::user)).outcome;
        };
        using Outcome = core::RefreshReport::Outcome;
        QCOMPARE(refresh(first, 20), Outcome::published);
        QCOMPARE(refresh(second, 40), Outcome::published);
        QCOMPARE(refresh(first, 40), Outcome::published);
        desk.clock.advance(-2h); // set back
        QCOMPARE(refresh(second, 45), Outcome::published);
        QCOMPARE(refresh(first, 45), Outcome::published);
        QCOMPARE(first.model.history().points[0].estimatedQuotaConsumed, 20.0);
        QCOMPARE(first.model.history().points.at(2).estimatedQuotaConsumed, 5.0);
    }

    void takesTurnsWithOthers() {
        Desk desk(m_identity);
        Running running(desk);
        desk.installCodex(42);
        const auto pass = [&desk](std::chrono::milliseconds time) {
            for (; time > 0ms; time -= 100ms) {
                desk.clock.advance(100ms);
                QCoreApplication::processEvents();
            }
        };
        auto lock = desk.store.tryLock();
        auto refresh = running.model.refresh(AskedBy::user);
        pass(59s);
        QVERIFY(!refresh.isReady());
        lock->reset();
        pass(1s);
        QCOMPARE(QCoro::waitFor(refresh).outcome, core::RefreshReport::Outcome::published);

        lock = desk.store.tryLock();
        refresh = running.model.refresh(AskedBy::user);
        pass(61s);
        QVERIFY(refresh.isReady());
        QCOMPARE(QCoro::waitFor(refresh).outcome, core::RefreshReport::Outcome::notSaved);
        QVERIFY2(running.model.lastError()->contains(u"Another program"),
                 qPrintable(*running.model.lastError()));
    }

    /// What is on show only leaves no trace in the files.
    void storesNothingMadeUp() {
        Desk desk(m_identity);
        const model::QuotaSnapshot stored = syncedSnapshot();
        model::QuotaSnapshot madeUp = syncedSnapshot();
        for (model::ProviderQuotaSnapshot& entry : madeUp.providers) {
            entry.week->usedPercent = 99;
        }
        for (const bool isAnythingStored : {false, true}) {
            QVERIFY(!isAnythingStored || desk.store.saveSnapshot(stored));
            Running running(desk, madeUp);
            QCoro::waitFor(running.model.refresh(AskedBy::user)); // both fail
            const auto after = desk.store.loadSnapshot();
            QVERIFY(running.model.snapshot() == after);
            for (std::size_t i = 0; i < 2; ++i) {
                QCOMPARE(after->providers[i].week,
                         isAnythingStored ? stored.providers[i].week : std::nullopt);
                QCOMPARE(running.model.history().points[i].estimatedQuotaConsumed, 0.0);
            }
            std::filesystem::remove_all(desk.locations.dataHome);
            std::filesystem::remove_all(desk.locations.configHome);
        }
    }

    void showsNothingThatIsNotSaved() {
        Desk desk(m_identity);
        Running running(desk);
        std::filesystem::remove_all(desk.locations.dataHome);
        desk.write("data", "in the folder's place");
        const model::QuotaSnapshot before = running.model.snapshot();
        desk.installCodex(42);
        auto refresh = running.model.refresh(AskedBy::user);
        QVERIFY(!QCoro::waitFor(running.model.refreshOrJoin()));
        const core::RefreshReport report = QCoro::waitFor(refresh);
        QCOMPARE(report.outcome, core::RefreshReport::Outcome::notSaved);
        QVERIFY(running.model.lastError()->contains(u"quota-snapshot.json"));
        QVERIFY(running.model.snapshot() == before && !running.model.isRefreshing());
        QVERIFY(desk.widgetCentre.calls.isEmpty());
    }

    void remembersTheAppearance() {
        Desk desk(m_identity);
        desk.defaults.setText(QStringLiteral("appearance"), QStringLiteral("Dark"));
        QCOMPARE(Running(desk).model.appearance(), model::AppAppearance::system);
        Running(desk).model.setAppearance(model::AppAppearance::dark);
        QCOMPARE(Running(desk).model.appearance(), model::AppAppearance::dark);
    }

    void tellsOfAReset() {
        Desk desk(m_identity);
        Running running(desk);
        const QSignalSpy changed(&running.model, &core::AppModel::notificationSettingsChanged);
        const notify::NotificationSettings anyTime{.enabled = true, .windows = {{.allDay = true}}};
        running.model.setNotificationSettings(anyTime);
        running.model.setNotificationSettings(anyTime);
        QCOMPARE(changed.count(), 1);
        QVERIFY(Running(desk).model.notificationSettings() == anyTime);
        for (const int used : {42, 3}) {
            QVERIFY(desk.notificationCentre.posts.isEmpty());
            desk.installCodex(used);
            QCoro::waitFor(running.model.refresh(AskedBy::user));
        }
        QCOMPARE(desk.notificationCentre.posts.size(), 1);
        QCOMPARE(desk.notificationCentre.posts[0].identifier,
                 QStringLiteral("reset-codex-1775779200.0"));
    }

    void refreshesEveryFiveMinutes() {
        Desk desk(m_identity);
        Running running(desk);
        core::AutoRefresh autoRefresh(running.model, desk.clock);
        const QSignalSpy published(&running.model, &core::AppModel::snapshotChanged);

        autoRefresh.start({.isTestHost = true});
        autoRefresh.start({.isFixtureMode = true});
        QVERIFY(!running.model.isRefreshing());
        autoRefresh.start({});
        QTRY_COMPARE(desk.clock.pendingAlarms(), 1U);
        QCOMPARE(published.count(), 1);
        desk.clock.advance(299s);
        QVERIFY(!running.model.isRefreshing());
        desk.clock.advance(1s);
        QTRY_COMPARE(published.count(), 2);
        QTRY_COMPARE(desk.clock.pendingAlarms(), 1U);
        autoRefresh.stop();
        desk.clock.advance(1h);
        QVERIFY(!running.model.isRefreshing());
    }

    /// The service wants a pause: the timer keeps it, the user need not.
    void asksTheUnwillingForTheUserOnly() {
        Desk desk(m_identity, {httpReply(429, {}, "Retry-After: 3000\r\n"),
                               httpReply(200, R"({"five_hour":{"utilization":3}})")});
        desk.signIn();
        Running running(desk);
        core::AutoRefresh autoRefresh(running.model, desk.clock);
        const auto claude = [&] { return running.model.snapshot().providers[1]; };
        autoRefresh.start({});
        for (int automatic = 0; automatic < 3; ++automatic) {
            QTRY_COMPARE(desk.clock.pendingAlarms(), 2U); // the service's and the next refresh
            QCOMPARE(claude().statusMessage, QStringLiteral("Rate limited"));
            QCOMPARE(running.model.snapshot().updatedAt, desk.clock.now());
            QCOMPARE(desk.server.requests().size(), 1);
            desk.clock.advance(core::refreshInterval);
        }
        QTRY_VERIFY(!running.model.isRefreshing());
        QCoro::waitFor(running.model.refresh(AskedBy::user));
        QCOMPARE(desk.server.requests().size(), 2);
        QCOMPARE(claude().fiveHour->usedPercent, 3.0);
        QVERIFY(!claude().statusMessage);
    }
};

TALLYVANE_TEST_MAIN(AppModelTest)
#include "app_model_test.moc"
