#include "history/usage_history.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane;
using history::UsageHistory;
using history::UsageHistoryPoint;

class UsageHistoryTest : public tests::HermeticTest {
    Q_OBJECT

    const QByteArray m_json = "{\n"
                              "  \"points\" : [\n"
                              "    {\n"
                              "      \"date\" : \"2025-01-30T23:00:00Z\",\n"
                              "      \"estimatedLocalTokens\" : 182340,\n"
                              "      \"estimatedQuotaConsumed\" : 4.5,\n"
                              "      \"provider\" : \"codex\"\n"
                              "    }\n"
                              "  ],\n"
                              "  \"schemaVersion\" : 3\n"
                              "}";

private Q_SLOTS:
    void layout() {
        const UsageHistory history{
            .schemaVersion = 3,
            .points = {{.date = std::chrono::sys_days{std::chrono::year{2025} / 1 / 30} + 23h,
                        .estimatedQuotaConsumed = 4.5,
                        .estimatedLocalTokens = 182340}}};
        QCOMPARE(*history::encodeHistory(history), m_json);
        QVERIFY(history::decodeHistory(m_json) == history);
        QVERIFY(history::decodeHistory("{\"schemaVersion\":1,\"points\":[],\"x\":0}") ==
                UsageHistory{});
    }

    void decodesStrictly_data() {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("change");
        for (const char* key : {"points", "date", "estimatedLocalTokens", "estimatedQuotaConsumed",
                                "provider", "schemaVersion"}) {
            QTest::newRow(key) << QByteArray(key) << QByteArray("x");
        }
        const auto row = [](const char* place, const char* change) {
            QTest::newRow(change) << QByteArray(place) << QByteArray(change);
        };
        row("codex", "gemini");
        row("00Z", "00.000Z");
        row("182340", "182340.5");
        row("182340", "1e19");
        row("4.5", "\"4.5\"");
    }

    void decodesStrictly() {
        QFETCH(QByteArray, place);
        QFETCH(QByteArray, change);
        QVERIFY(m_json.contains(place));
        QVERIFY(!history::decodeHistory(QByteArray(m_json).replace(place, change)));
    }

    void identifies() {
        UsageHistoryPoint point{.date = model::Timestamp{1738281600s}};
        QCOMPARE(history::id(point), QStringLiteral("codex-1738281600.0"));
        point.provider = model::AIProvider::claude;
        point.date += 250ms;
        QCOMPARE(history::id(point), QStringLiteral("claude-1738281600.25"));
    }
};

TALLYVANE_TEST_MAIN(UsageHistoryTest)
#include "usage_history_test.moc"
