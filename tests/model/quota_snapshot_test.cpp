#include "model/quota_snapshot.h"
#include "support/home_files.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane::model;

namespace {

Timestamp at(QStringView text) {
    return *parseTimestamp(text, FractionalSeconds::rejected);
}

QuotaSnapshot fullSnapshot() {
    return {.providers = {{.provider = AIProvider::codex,
                           .planName = QStringLiteral("Plus \"1\"\n\u00e9\x01\\\U0001F642\xD83D"),
                           .fiveHour = QuotaWindowSnapshot{.usedPercent = 42,
                                                           .resetsAt = at(u"2025-01-31T16:00:00Z")},
                           .week = QuotaWindowSnapshot{.usedPercent = 0.1},
                           .syncedAt = at(u"2025-01-31T14:05:00Z"),
                           .syncState = QuotaSyncState::current},
                          {.provider = AIProvider::claude,
                           .statusMessage = QStringLiteral("Rate limited")}},
            .updatedAt = at(u"2025-01-31T14:05:00Z")};
}

/// The stored form of fullSnapshot().
QByteArray fullJson() {
    return tallyvane::tests::readFile(QStringLiteral(TALLYVANE_TEST_DATA "/quota-snapshot.json"));
}

} // namespace

class QuotaSnapshotTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void parsesTimestamps() {
        const std::pair<const char*, const char*> rows[] = {
            {"2025-01-31T14:05:00Z", "2025-01-31T14:05:00Z"},
            {"2025-01-31T00:30:00+01:00", "2025-01-30T23:30:00Z"},
            {"2024-02-29T23:59:59-23:59", "2024-03-01T23:58:59Z"},
            {"1969-12-31T23:59:59Z", "1969-12-31T23:59:59Z"},
            {"0000-01-01T00:00:00Z", "0000-01-01T00:00:00Z"}};
        for (const auto& [text, expected] : rows) {
            const QString given = QString::fromLatin1(text);
            const auto parsed = parseTimestamp(given, FractionalSeconds::rejected);
            QVERIFY2(parsed && parsed == parseTimestamp(given, FractionalSeconds::allowed), text);
            QCOMPARE(formatTimestamp(*parsed), QString::fromLatin1(expected));
        }
        for (const QStringView text : {u"2026-04-11T07:00:00.528743+00:00",
                                       u"2026-04-11T07:00:00.5287431234567890123456789Z"}) {
            QVERIFY(!parseTimestamp(text, FractionalSeconds::rejected));
            const auto parsed = parseTimestamp(text, FractionalSeconds::allowed);
            QCOMPARE(parsed->time_since_epoch() % 1s, 528'743us);
        }
    }

    void rejectsTimestamps() {
        const std::pair<const char*, const char*> changes[] = {
            {"T14:05:00Z", ""}, {"Z", ""},          {"T", " "},         {"T", "t"},
            {"Z", "z"},         {"-01-", "-1-"},    {"-01-", "-13-"},   {"-01-", "-00-"},
            {"01-31", "02-29"}, {"01-31", "04-31"}, {"01-31", "01-00"}, {"14:", "24:"},
            {":05", ":60"},     {":00Z", ":60Z"},   {"Z", "+1:00"},     {"Z", "+01"},
            {"Z", "+24:00"},    {"Z", "+00:60"},    {"Z", "Z "},        {"Z", ".Z"},
            {"2025", "-025"},   {"2025", "+2025"},  {"Z", "01:00"},     {"Z", "+01:00Z"},
            {"Z", ".5"}};
        for (const auto& [place, change] : changes) {
            const QString text = QStringLiteral("2025-01-31T14:05:00Z")
                                     .replace(QLatin1StringView(place), QLatin1StringView(change));
            QVERIFY2(!parseTimestamp(text, FractionalSeconds::allowed), qPrintable(text));
        }
        for (const QStringView text :
             {u"", u"0000-01-01T00:00:00+00:01", u"9999-12-31T23:59:59-00:01"}) {
            QVERIFY(!parseTimestamp(text, FractionalSeconds::allowed));
        }
    }

    void unixSeconds() {
        QCOMPARE(formatTimestamp(*timestampFromUnixSeconds(1750000000)),
                 QStringLiteral("2025-06-15T15:06:40Z"));
        QCOMPARE(formatTimestamp(*timestampFromUnixSeconds(-0.5)),
                 QStringLiteral("1969-12-31T23:59:59Z"));
        for (const double refused :
             {1e300, -1e300, 253402300800.0, -62167219201.0, qInf(), qQNaN()}) {
            QVERIFY(!timestampFromUnixSeconds(refused));
        }
    }

    void encodes() {
        QCOMPARE(QString::fromUtf8(*encodeSnapshot(fullSnapshot())), QString::fromUtf8(fullJson()));
        QuotaSnapshot readable = fullSnapshot();
        readable.providers[0].planName = QStringLiteral("Plus \"1\" \u00e9\\\U0001F642");
        QVERIFY(decodeSnapshot(fullJson()) == readable);
        QCOMPARE(*encodeSnapshot({.updatedAt = at(u"2025-01-31T14:05:00Z")}),
                 QByteArray("{\n  \"providers\" : [],\n  \"schemaVersion\" : 1,\n"
                            "  \"updatedAt\" : \"2025-01-31T14:05:00Z\"\n}"));
    }

    void numbers() {
        const std::pair<double, QByteArray> rows[] = {{100, "100"},
                                                      {-0.0, "0"},
                                                      {1.0 / 3, "0.3333333333333333"},
                                                      {0.1 + 0.2, "0.30000000000000004"},
                                                      {5e-324, "5e-324"},
                                                      {1e300, "1e+300"},
                                                      {qInf(), {}}, // cannot be encoded
                                                      {qQNaN(), {}}};
        for (const auto& [number, text] : rows) {
            const QuotaSnapshot snapshot{
                .providers = {{.week = QuotaWindowSnapshot{.usedPercent = number}}}};
            const auto json = encodeSnapshot(snapshot);
            QCOMPARE(json.has_value(), !text.isEmpty());
            if (json) {
                QVERIFY2(json->contains("\"usedPercent\" : " + text + '\n'), json->constData());
                QVERIFY(decodeSnapshot(*json) == snapshot);
            }
        }
    }

    /// Each row changes one place of a complete document.
    void decodesStrictly() {
        using Changes = std::vector<std::pair<QByteArray, QByteArray>>; // with ' for "
        const Changes accepted{{": 1,", ": -7,"},
                               {": 1,", ": 1.0,"},
                               {"'Rate limited'", "null"},
                               {"'week' : {", "'week' : null, 'x' : {"},
                               {"{\n  'p", "{'x' : [{}], 'p"}};
        const Changes rejected{{"'schemaVersion'", "'x'"},
                               {"'providers'", "'x'"},
                               {"'updatedAt'", "'x'"},
                               {"'provider'", "'x'"},
                               {"'syncState'", "'x'"},
                               {"'usedPercent'", "'x'"},
                               {": 1,", ": 1.5,"},
                               {": 1,", ": '1',"},
                               {": 1,", ": 1e30,"},
                               {": [", ": [1, "},
                               {"'claude'", "'Claude'"},
                               {"unavailable", "stale"},
                               {"0.1", "null"},
                               {"0.1", "'0.1'"},
                               {"0.1", "1e999"},
                               {"00Z", "00.000Z"},
                               {"'2025", "7, 'x' : '"},
                               {": {", ": 7, 'x' : {"},
                               {"'Plus", "7, 'x' : '"},
                               {"\n}", "\n"},
                               {"\n}", "\n} x"}};
        for (const Changes& changes : {accepted, rejected}) {
            for (auto [place, change] : changes) {
                QByteArray json = fullJson();
                QVERIFY2(json.contains(place.replace('\'', '"')), place);
                json.replace(place, change.replace('\'', '"'));
                QVERIFY2(decodeSnapshot(json).has_value() == (changes == accepted), change);
            }
        }
        QVERIFY(!decodeSnapshot("[]"));
    }
};

TALLYVANE_TEST(QuotaSnapshotTest)
#include "quota_snapshot_test.moc"
