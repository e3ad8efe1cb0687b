#include "model/quota_display.h"
#include "support/home_files.h"
#include "support/test_main.h"

#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane::model;

namespace {

/// A Tuesday; the texts are in summer time.
const Timestamp tuesday = std::chrono::sys_days{std::chrono::year{2025} / 7 / 8};

Timestamp at(QStringView text) {
    return *parseTimestamp(text, FractionalSeconds::rejected);
}

QuotaSnapshot fullSnapshot() {
    return {.providers = {{.provider = AIProvider::codex,
                           .planName = u"Plus \"1\"\n\u00e9\x01\\\U0001F642\xD83D"_s,
                           .fiveHour = QuotaWindowSnapshot{.usedPercent = 42,
                                                           .resetsAt = at(u"2025-01-31T16:00:00Z")},
                           .week = QuotaWindowSnapshot{.usedPercent = 0.1 + 0.2},
                           .syncedAt = at(u"2025-01-31T14:05:00Z"),
                           .syncState = QuotaSyncState::current},
                          {.provider = AIProvider::claude, .statusMessage = u"Rate limited"_s}},
            .updatedAt = at(u"2025-01-31T14:05:00Z")};
}

/// The stored form of fullSnapshot().
QByteArray fullJson() {
    return tallyvane::tests::readFile(QStringLiteral(TALLYVANE_TEST_DATA "/quota-snapshot.json"));
}

} // namespace

class QuotaTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void parsesTimestamps() {
        const auto parsed = [](QStringView text) {
            const auto timestamp = parseTimestamp(text, FractionalSeconds::rejected);
            return timestamp && timestamp == parseTimestamp(text, FractionalSeconds::allowed)
                       ? formatTimestamp(*timestamp)
                       : QString();
        };
        for (const QStringView text :
             {u"2025-01-31T14:05:00Z", u"1969-12-31T23:59:59Z", u"0000-01-01T00:00:00Z"}) {
            QCOMPARE(parsed(text), text);
        }
        QCOMPARE(parsed(u"2025-01-31T00:30:00+01:00"), u"2025-01-30T23:30:00Z");
        QCOMPARE(parsed(u"2024-02-29T23:59:59-23:59"), u"2024-03-01T23:58:59Z");
        for (const QStringView text : {u"2026-04-11T07:00:00.528743+00:00",
                                       u"2026-04-11T07:00:00.5287431234567890123456789Z"}) {
            QVERIFY(!parseTimestamp(text, FractionalSeconds::rejected));
            const auto parsed = parseTimestamp(text, FractionalSeconds::allowed);
            QCOMPARE(parsed->time_since_epoch() % 1s, 528'743us);
        }
    }

    void rejectsTimestamps() {
        const std::pair<const char*, const char*> changes[] = {
            {"T14:05:00Z", ""}, {"Z", ""},          {"T", "t"},         {"-01-", "-1-"},
            {"-01-", "-13-"},   {"01-31", "02-29"}, {"01-31", "01-00"}, {"14:", "24:"},
            {":05", ":60"},     {":00Z", ":60Z"},   {"Z", "+01"},       {"Z", "+24:00"},
            {"Z", "+00:60"},    {"Z", "Z "},        {"Z", ".Z"},        {"2025", "+2025"},
            {"Z", "01:00"}};
        for (const auto& [place, change] : changes) {
            const QString text = u"2025-01-31T14:05:00Z"_s.replace(QLatin1StringView(place),
                                                                   QLatin1StringView(change));
            QVERIFY2(!parseTimestamp(text, FractionalSeconds::allowed), qPrintable(text));
        }
        for (const QStringView text :
             {u"", u"0000-01-01T00:00:00+00:01", u"9999-12-31T23:59:59-00:01"}) {
            QVERIFY(!parseTimestamp(text, FractionalSeconds::allowed));
        }
    }

    void unixSeconds() {
        QVERIFY(timestampFromUnixSeconds(1750000000) == at(u"2025-06-15T15:06:40Z"));
        QVERIFY(timestampFromUnixSeconds(-0.5) == at(u"1969-12-31T23:59:59Z") + 500ms);
        for (const double refused :
             {1e300, -1e300, 253402300800.0, -62167219201.0, qInf(), qQNaN()}) {
            QVERIFY(!timestampFromUnixSeconds(refused));
        }
    }

    void encodes() {
        QCOMPARE(QString::fromUtf8(*encodeSnapshot(fullSnapshot())), QString::fromUtf8(fullJson()));
        QuotaSnapshot readable = fullSnapshot();
        readable.providers[0].planName = u"Plus \"1\" \u00e9\\\U0001F642"_s;
        QVERIFY(decodeSnapshot(fullJson()) == readable);
        QVERIFY(encodeSnapshot({})->startsWith("{\n  \"providers\" : [],\n"));
        for (const double number : {qInf(), qQNaN()}) {
            readable.providers[1].week = QuotaWindowSnapshot{.usedPercent = number};
            QVERIFY(!encodeSnapshot(readable));
        }
    }

    /// Makes each change to a complete document, in which ' stands for ".
    void decodesStrictly() {
        const auto check = [](const char* place, const QByteArrayList& changes,
                              bool isAccepted = false) {
            const QByteArray json = fullJson().replace('"', '\'');
            QVERIFY2(json.contains(place), place);
            for (const QByteArray& change : changes) {
                const auto changed = QByteArray(json).replace(place, change).replace('\'', '"');
                QVERIFY2(decodeSnapshot(changed).has_value() == isAccepted, changed);
            }
        };
        check(": 1,", {": -7,", ": 1.0,"}, true);
        check("'Rate limited'", {"null"}, true);
        check("'week' : {", {"'week' : null, 'x' : {"}, true);
        check("{\n  'p", {"{'x' : [{}], 'p"}, true);
        for (const char* required : {"'schemaVersion'", "'providers'", "'updatedAt'", "'provider'",
                                     "'syncState'", "'usedPercent'"}) {
            check(required, {"'x'"});
        }
        check(": 1,", {": 1.5,", ": '1',", ": 1e30,"});
        check(": [", {": [1, "});
        check("'claude'", {"'Claude'"});
        check("unavailable", {"stale"});
        check("0.30000000000000004", {"null", "'0.1'", "1e999"});
        check("00Z", {"00.000Z"});
        check("'2025", {"7, 'x' : '"});
        check("\n}", {"\n", "\n} x"});
        QVERIFY(!decodeSnapshot("[]"));
    }

    void resetTexts() {
        using enum QuotaSyncState;
        const WeekdayTimeFormat weekdayTime("en_US", LocalZone(QTimeZone("Europe/London")));
        const auto text = [&](QuotaSyncState state, std::optional<std::chrono::seconds> left,
                              const std::optional<QString>& message = {}) {
            return resetText(left ? std::optional(tuesday + *left) : std::nullopt,
                             {.syncState = state, .statusMessage = message}, tuesday, weekdayTime);
        };
        const QString limited = QStringLiteral("Rate limited");
        QCOMPARE(text(pending, 60s), u"Sync pending");
        QCOMPARE(text(pending, 60s, limited), limited);
        QCOMPARE(text(unavailable, 60s, limited), u"Not available");
        QCOMPARE(text(current, {}, limited), u"Reset unknown");
        QCOMPARE(text(current, 0s), u"Sync pending");
        QCOMPARE(text(current, 1s), u"in 1m");
        QCOMPARE(text(current, 3599s), u"in 59m");
        QCOMPARE(text(current, 3600s), u"in 1h 1m");
        QCOMPARE(text(current, 86399s), u"in 23h 59m");
        QCOMPARE(text(current, 86400s), u"Wed 1:00 AM");
        QCOMPARE(text(current, 24h * 7 + 15h + 45min), u"Tue 4:45 PM");
    }

    void paces() {
        struct Row {
            const char* text;
            double used;
            std::optional<std::chrono::minutes> left; ///< from the sync to the reset
            QString expected; ///< even, ahead, projected, and minutes from the sync to the end
            std::chrono::seconds age = 60s;
            QuotaSyncState state = QuotaSyncState::current;
            QuotaPeriod period = QuotaPeriod::fiveHour;
        };
        const Row rows[] = {
            {"half of both", 50, 150min, u"50 0 100"_s},
            {"slow", 20, 150min, u"50 30 40"_s},
            {"fast", 80, 150min, u"50 -30 160 37"_s},
            {"by the sync's time, not by now", 80, 150min, u"50 -30 160 37"_s, 30min},
            {"a week", 60, 24h * 7 / 2, u"50 -10 120 3360"_s, 60s, QuotaSyncState::current,
             QuotaPeriod::week},
            {"too early to tell", 50, 286min, u"95 -45"_s},
            {"no longer", 50, 285min, u"95 -45 1000 15"_s},
            {"nothing used", 0, 150min, u"50 50 0"_s},
            {"less than nothing used", -5, 150min, u"50 50 0"_s},
            {"over all", 130, 150min, u"50 -50 260"_s},
            {"a minute early", 100 * 150 / 299., 150min, u"50 0 100 149"_s},
            {"half a minute early", 100 * 150 / 299.5, 150min, u"50 0 100"_s},
            {"should have run out by now", 80, 150min, u"50 -30"_s, 38min},
            {"reset farther than the window is long", 10, 301min, {}},
            {"reset past", 10, 1min, {}},
            {"no reset", 10, {}, {}},
            {"clock set back", 10, 150min, {}, -1s},
            {"old figures", 80, 150min, {}, 60s, QuotaSyncState::pending}};
        for (const Row& row : rows) {
            const Timestamp synced = tuesday - row.age;
            ProviderQuotaSnapshot entry{.syncedAt = synced, .syncState = row.state};
            auto& quota = row.period == QuotaPeriod::week ? entry.week : entry.fiveHour;
            quota = {.usedPercent = row.used};
            if (row.left) {
                quota->resetsAt = synced + *row.left;
            }
            QString text;
            if (const auto found = pace(entry, row.period, tuesday)) {
                text = u"%1 %2"_s.arg(std::lround(found->evenPercent))
                           .arg(std::lround(found->aheadPercent));
                if (found->isProjected) {
                    text += u" %1"_s.arg(std::lround(found->projectedPercent));
                }
                if (found->runsOutAt) {
                    text += u" %1"_s.arg((*found->runsOutAt - synced) / 1min);
                }
            }
            QVERIFY2(text == row.expected,
                     qPrintable(QLatin1StringView(row.text) + u": "_s + text));
        }
    }

    void ageTexts() {
        QCOMPARE(ageText({}, tuesday), u"never");
        const auto text = [](std::chrono::seconds age) { return ageText(tuesday - age, tuesday); };
        QCOMPARE(text(-90s), u"just now");
        QCOMPARE(text(59s), u"just now");
        QCOMPARE(text(60s), u"1 min ago");
        QCOMPARE(text(3599s), u"59 min ago");
        QCOMPARE(text(3600s), u"1 hr ago");
        QCOMPARE(text(86399s), u"23 hr ago");
        QCOMPARE(text(86400s), u"1 d ago");
    }
};

TALLYVANE_TEST(QuotaTest)
#include "quota_test.moc"
