#include "history/calendar_days.h"
#include "history/usage_history_recorder.h"
#include "support/test_main.h"

#include <sys/mount.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace tallyvane;
using history::TokenTotals;
using history::UsageHistory;
using history::UsageHistoryPoint;
using model::AIProvider;
using model::Timestamp;

namespace {

using Used = std::optional<double>;

Timestamp at(QStringView text) {
    return *model::parseTimestamp(text, model::FractionalSeconds::rejected);
}

/// A store and its defaults in a home of their own, with one call to record.
struct Desk {
    QTemporaryDir home;
    std::filesystem::path root{home.path().toStdString()};
    model::SharedStore store{{.dataHome = root / "data", .configHome = root / "config"}};
    model::DefaultsStore defaults =
        model::DefaultsStore::openFirst(root / "config" / "suite", root / "config" / "own");
    history::TokenBaselines baselines{defaults};
    std::optional<QString> uncounted; ///< of the last call
    model::LocalZone zone{QTimeZone::utc()};
    Timestamp now = at(u"2026-03-10T12:00:00Z");

    /// The weekly figures of Codex before and after, and both token totals.
    auto record(Used before, Used after, std::int64_t codexTokens = 0,
                std::int64_t claudeTokens = 0) {
        const auto snapshot = [this](Used used) {
            model::QuotaSnapshot snapshot = model::placeholderSnapshot(now);
            if (used) {
                snapshot.providers[0].week = model::QuotaWindowSnapshot{.usedPercent = *used};
            }
            return snapshot;
        };
        history::UsageHistoryRecorder recorder(store, baselines, zone);
        const auto recorded = recorder.record(
            snapshot(before), snapshot(after),
            TokenTotals{{AIProvider::codex, codexTokens}, {AIProvider::claude, claudeTokens}}, now);
        uncounted = recorded ? recorded->uncounted : std::nullopt;
        using Result = std::expected<UsageHistory, model::FileError>;
        return recorded ? Result(recorded->history) : Result(std::unexpected(recorded.error()));
    }
};

} // namespace

class UsageHistoryRecorderTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void addsUpADay() {
        Desk desk;
        struct Step {
            Used before;
            Used after;
            std::int64_t codexTokens = 0;
            double quota = 0; // of Codex after the step
            std::int64_t tokens = 0;
        };
        const Step steps[] = {
            {{}, 20, 1000, 0, 0},       // the first ever only sets the baseline
            {20, 23.5, 1250, 3.5, 250}, //
            {23.5, 1, 900, 3.5, 250},   // a reset; logs went away
            {1, 2, 901, 4.5, 251},      //
            {2, {}, 901, 4.5, 251},     // the provider is gone
            {{}, 50, 0, 4.5, 251},      // and back
            {50, 51, 500, 5.5, 251},    // a baseline of 0 counts as none
            {51, 51, 501, 5.5, 252},
        };
        for (const Step& step : steps) {
            const auto history = desk.record(step.before, step.after, step.codexTokens, 7);
            QVERIFY(history);
            QCOMPARE(history->points.size(), 2U);
            QCOMPARE(history->points[0].date, at(u"2026-03-10T00:00:00Z"));
            QCOMPARE(history->points[0].estimatedQuotaConsumed, step.quota);
            QCOMPARE(history->points[0].estimatedLocalTokens, step.tokens);
            QCOMPARE(history->points[1].provider, AIProvider::claude);
            QCOMPARE(history->points[1].estimatedLocalTokens, 0);
            QVERIFY(history::loadHistory(desk.store) == *history);
        }
        QCOMPARE(desk.defaults.integer(QStringLiteral("token-baseline.claude")), 7);
    }

    /// Each token once, also when the totals cannot be kept for a while.
    void countsNothingTwice() {
        Desk desk;
        const auto suite = desk.root / "config" / "suite";
        const auto tokens = [&](std::int64_t total) {
            return desk.record(1, 1, total)->points[0].estimatedLocalTokens;
        };
        const auto block = [&] { // a folder of that name cannot be replaced by a file
            std::filesystem::remove(suite);
            std::filesystem::create_directory(suite);
        };
        block();
        QCOMPARE(tokens(1000), 0);
        QCOMPARE(tokens(1250), 0);
        QVERIFY2(desk.uncounted && desk.uncounted->contains(u"suite"),
                 qPrintable(desk.uncounted.value_or(QString())));
        std::filesystem::remove(suite);
        QCOMPARE(tokens(1300), 300);
        QVERIFY(!desk.uncounted);
        QCOMPARE(tokens(1300), 300);
        block();
        QCOMPARE(tokens(1400), 300);
        std::filesystem::remove(suite); // and the total of 1300 with it
        QCOMPARE(tokens(1500), 500);
        QCOMPARE(tokens(std::numeric_limits<std::int64_t>::min()), 500);
        QCOMPARE(tokens(std::numeric_limits<std::int64_t>::max()), 500);
    }

    /// The logs went away while another program counted, and came back.
    void forgetsWhatOthersKnowBetter() {
        Desk desk;
        history::TokenBaselines others(desk.defaults);
        const auto tokens = [&](std::int64_t total) {
            return desk.record(1, 1, total)->points[0].estimatedLocalTokens;
        };
        QCOMPARE(tokens(100), 0);
        for (const std::int64_t total : {1000, 0}) {
            QVERIFY(others.move({{AIProvider::codex, total}}));
        }
        QCOMPARE(tokens(1000), 0);
        QCOMPARE(tokens(1001), 1);
    }

    void startsAPointPerDay() {
        Desk desk;
        desk.now = at(u"2026-03-10T23:59:59Z");
        QVERIFY(desk.record(1, 2));
        desk.now += 1s;
        QCOMPARE(desk.record(2, 4)->points.size(), 4U);
        // Where the traveller has arrived, the second point's day still lasts.
        desk.zone = model::LocalZone(QTimeZone("America/New_York"));
        const auto history = desk.record(4, 7);
        QCOMPARE(history->points.size(), 4U);
        QCOMPARE(history->points[2].estimatedQuotaConsumed, 2.0 + 3.0);
        QCOMPARE(history->points[0].estimatedQuotaConsumed, 1.0);
    }

    void daysFollowTheZone_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("today");
        QTest::addColumn<QString>("ninetyDaysBefore");
        const auto row = [](const char* zone, const char* now, const char* today,
                            const char* before) {
            QTest::newRow(zone) << QByteArray(zone) << QString::fromLatin1(now)
                                << QString::fromLatin1(today) << QString::fromLatin1(before);
        };
        row("UTC", "2026-03-10T00:00:00Z", "2026-03-10T00:00:00Z", "2025-12-10T00:00:00Z");
        row("Europe/Berlin", "2026-03-29T21:59:59Z", "2026-03-28T23:00:00Z",
            "2025-12-28T23:00:00Z");
        row("America/New_York", "2025-11-02T23:00:00Z", "2025-11-02T04:00:00Z",
            "2025-08-04T04:00:00Z");
        // Midnight of the 7th does not exist: the day starts at one o'clock.
        row("America/Santiago", "2025-09-07T12:00:00Z", "2025-09-07T04:00:00Z",
            "2025-06-09T04:00:00Z");
        row("Pacific/Kiritimati", "2026-01-01T09:59:59Z", "2025-12-31T10:00:00Z",
            "2025-10-02T10:00:00Z");
    }

    /// A point of the day 90 days before is kept, one of a second earlier is not.
    void daysFollowTheZone() {
        QFETCH(QByteArray, zone);
        QFETCH(QString, now);
        QFETCH(QString, today);
        QFETCH(QString, ninetyDaysBefore);
        Desk desk;
        desk.zone = model::LocalZone(QTimeZone(zone));
        desk.now = at(now);
        const Timestamp oldest = at(ninetyDaysBefore);
        QVERIFY(history::saveHistory(
            desk.store, {.schemaVersion = 2, .points = {{.date = oldest - 1s}, {.date = oldest}}}));
        const auto history = desk.record(1, 2);
        QCOMPARE(history->schemaVersion, 2);
        QCOMPARE(history->points.size(), 3U);
        QCOMPARE(history->points[0].date, oldest);
        QCOMPARE(history->points[1].date, at(today));
    }

    void startsAnewFromADamagedFile() {
        Desk desk;
        QVERIFY(desk.store.saveHistory("{\"schemaVersion\":1,\"points\":[{\"provider\":\"x\"}]}"));
        QCOMPARE(desk.record(1, 2)->points.size(), 2U);
    }

    void reportsWhatItCouldNotSave() {
        if (::geteuid() != 0) {
            TALLYVANE_SKIP("mounting a full file system needs root");
        }
        Desk desk;
        const auto directory = desk.store.baseURL().string();
        if (::mount("none", directory.c_str(), "tmpfs", 0, "size=4k") != 0) {
            TALLYVANE_SKIP("this machine lets nobody mount");
        }
        QFile filler(QString::fromStdString(directory + "/filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly));
        filler.write(QByteArray(4096, 'x'));
        filler.close();
        const auto full = desk.record(1, 2, 10);
        ::mount("none", directory.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr);
        const auto readOnly = desk.record(1, 2, 10);
        ::umount(directory.c_str());
        QVERIFY(!full && !readOnly);
        QVERIFY2(full.error().message.contains(u"No space left"), qPrintable(full.error().message));
        QVERIFY2(readOnly.error().message.contains(u"Read-only"),
                 qPrintable(readOnly.error().message));
        QCOMPARE(desk.defaults.integer(QStringLiteral("token-baseline.codex")), 10);
        QVERIFY(!history::loadHistory(desk.store));
    }
};

TALLYVANE_TEST_MAIN(UsageHistoryRecorderTest)
#include "usage_history_recorder_test.moc"
