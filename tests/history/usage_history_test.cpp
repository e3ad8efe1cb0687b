#include "history/history_csv.h"
#include "history/usage_history_recorder.h"
#include "support/test_main.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane;
using history::UsageHistory;
using history::UsageHistoryPoint;
using model::AIProvider;
using model::Timestamp;

namespace {

using Used = std::optional<double>;

Timestamp at(QStringView text) {
    return *model::parseTimestamp(text, model::FractionalSeconds::rejected);
}

/// A store and its defaults, with a short way to call record().
struct Desk {
    QTemporaryDir home;
    std::filesystem::path root{home.path().toStdString()};
    std::filesystem::path suite = root / "config" / "suite";
    model::SharedStore store{{.dataHome = root / "data", .configHome = root / "config"}};
    model::DefaultsStore defaults = model::DefaultsStore::openFirst(suite, root / "config" / "own");
    history::TokenBaselines baselines{defaults};
    model::LocalZone zone{QTimeZone::utc()};
    Timestamp now = at(u"2026-03-10T12:00:00Z");

    /// Takes the weekly figures of Codex before and after, and both token totals.
    auto record(Used before, Used after, std::int64_t codexTokens = 0,
                std::int64_t claudeTokens = 0) {
        const auto snapshot = [this](Used used) {
            model::QuotaSnapshot snapshot = model::placeholderSnapshot(now);
            if (used) {
                snapshot.providers[0].week = model::QuotaWindowSnapshot{.usedPercent = *used};
            }
            return snapshot;
        };
        return history::UsageHistoryRecorder(store, baselines, zone)
            .record(snapshot(before), snapshot(after),
                    {{AIProvider::codex, codexTokens}, {AIProvider::claude, claudeTokens}}, now);
    }

    /// Today's tokens of Codex in the history once its total is `total`.
    std::int64_t tokens(std::int64_t total) {
        return record(1, 1, total)->history.points[0].estimatedLocalTokens;
    }
};

} // namespace

class UsageHistoryTest : public tests::HermeticTest {
    Q_OBJECT

    const QByteArray m_json = R"({
  "points" : [
    {
      "date" : "2025-01-30T23:00:00Z",
      "estimatedLocalTokens" : 182340,
      "estimatedQuotaConsumed" : 4.5,
      "provider" : "codex"
    }
  ],
  "schemaVersion" : 3
})";

private Q_SLOTS:
    void layout() {
        const UsageHistory history{.schemaVersion = 3,
                                   .points = {{.date = at(u"2025-01-30T23:00:00Z"),
                                               .estimatedQuotaConsumed = 4.5,
                                               .estimatedLocalTokens = 182340}}};
        QCOMPARE(*history::encodeHistory(history), m_json);
        QVERIFY(history::decodeHistory(m_json) == history);
    }

    void decodesStrictly() {
        std::vector<std::pair<QByteArray, QByteArray>> changes{{"codex", "gemini"},
                                                               {"00Z", "00.000Z"},
                                                               {"182340", "182340.5"},
                                                               {"182340", "1e19"},
                                                               {"4.5", "\"4.5\""}};
        for (const char* key : {"points", "date", "estimatedLocalTokens", "estimatedQuotaConsumed",
                                "provider", "schemaVersion"}) {
            changes.emplace_back(key, "x");
        }
        for (const auto& [place, change] : changes) {
            QVERIFY2(!history::decodeHistory(QByteArray(m_json).replace(place, change)), change);
        }
    }

    void addsUpADay() {
        Desk desk;
        const auto midnight = at(u"2026-03-10T00:00:00Z");
        const UsageHistoryPoint claude{.date = midnight, .provider = AIProvider::claude};
        // Takes what both figures of Codex have come to today.
        const auto check = [&](Used before, Used after, std::int64_t total, double quota,
                               std::int64_t tokens) {
            const auto recorded = desk.record(before, after, total, 7);
            const UsageHistoryPoint codex{midnight, AIProvider::codex, quota, tokens};
            QVERIFY(recorded && recorded->history.points == (std::vector{codex, claude}));
            QVERIFY(history::loadHistory(desk.store) == recorded->history);
        };
        check({}, 20, 1000, 0, 0); // the first total only sets the baseline
        check(20, 23.5, 1250, 3.5, 250);
        check(23.5, 1, 900, 3.5, 250); // a reset; logs have disappeared
        check(1, 2, 901, 4.5, 251);
        check(2, {}, 901, 4.5, 251); // the weekly figure is missing
        check({}, 50, 0, 4.5, 251);
        check(50, 51, 500, 5.5, 251); // a baseline of 0 counts as none
        check(51, 51, 501, 5.5, 252);
        QCOMPARE(desk.defaults.integer(u"token-baseline.claude"_s), 7);
    }

    /// Counts each token once, even if the baselines cannot be stored for a while.
    void countsNothingTwice() {
        Desk desk;
        const auto block = [&] { // a directory cannot be replaced by a file
            std::filesystem::remove(desk.suite);
            std::filesystem::create_directories(desk.suite);
        };
        block();
        QCOMPARE(desk.tokens(1000), 0);
        const auto uncounted = desk.record(1, 1, 1250)->uncounted;
        QVERIFY(uncounted && uncounted->text().contains(u"suite"));
        std::filesystem::remove(desk.suite);
        QCOMPARE(desk.tokens(1300), 300);
        QVERIFY(!desk.record(1, 1, 1300)->uncounted);
        block();
        QCOMPARE(desk.tokens(1400), 300);
        std::filesystem::remove(desk.suite); // with the baseline of 1300
        QCOMPARE(desk.tokens(1500), 500);
        QCOMPARE(desk.tokens(std::numeric_limits<std::int64_t>::min()), 500);
        QCOMPARE(desk.tokens(std::numeric_limits<std::int64_t>::max()), 500);
    }

    void keepsNinetyDaysOfTheZone() {
        Desk desk;
        desk.zone = model::LocalZone(QTimeZone("America/New_York"));
        desk.now = at(u"2025-11-02T23:00:00Z"); // The clocks went back in the morning.
        const Timestamp oldest = at(u"2025-08-04T04:00:00Z");
        QVERIFY(history::saveHistory(
            desk.store, {.schemaVersion = 2, .points = {{.date = oldest - 1s}, {.date = oldest}}}));
        const UsageHistory history = desk.record(1, 2)->history;
        QCOMPARE(history.schemaVersion, 2);
        QCOMPARE(history.points.size(), 3U);
        QCOMPARE(history.points[0].date, oldest);
        QCOMPARE(history.points[1].date, at(u"2025-11-02T04:00:00Z"));
    }

    void writesCsv() {
        const UsageHistory history{
            .points = {{.date = at(u"2026-01-30T23:00:00Z"),
                        .provider = AIProvider::claude,
                        .estimatedQuotaConsumed = 0.1 + 0.2,
                        .estimatedLocalTokens = 1234567},
                       {.date = at(u"2026-01-31T23:00:00Z"), .estimatedQuotaConsumed = 1e-7}}};
        QLocale::setDefault(QLocale(u"de_DE"_s));
        QCOMPARE(history::csvText(history, model::LocalZone(QTimeZone("Europe/Berlin"))),
                 u"day,provider,weekly_quota_percent,tokens\r\n"
                 "2026-01-31,claude,0.30000000000000004,1234567\r\n"
                 "2026-02-01,codex,0.0000001,0\r\n"_s);
    }

    void copesWithADamagedFile() {
        Desk desk;
        QVERIFY(desk.store.saveHistory(R"({"schemaVersion":1,"points":[{"provider":"x"}]})"));
        QCOMPARE(desk.record(1, 2)->history.points.size(), 2U);
    }
};

TALLYVANE_TEST(UsageHistoryTest)
#include "usage_history_test.moc"
