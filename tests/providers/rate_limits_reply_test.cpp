#include "providers/codex/rate_limits_reply.h"
#include "providers/json_members.h"
#include "support/test_main.h"

using namespace tallyvane;
using model::ProviderQuotaSnapshot;
using model::QuotaWindowSnapshot;
using std::chrono::seconds;

namespace {

constexpr model::Timestamp now{seconds{1'800'000'000}};

QuotaWindowSnapshot window(double usedPercent, std::optional<seconds> resetsAt = {}) {
    QuotaWindowSnapshot result{.usedPercent = usedPercent};
    if (resetsAt) {
        result.resetsAt = model::Timestamp{*resetsAt};
    }
    return result;
}

} // namespace

class TestRateLimitsReply final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void picksTheWindows_data() {
        QTest::addColumn<QByteArray>("rateLimits");
        QTest::addColumn<ProviderQuotaSnapshot>("expected"); // plan name and windows

        const QByteArray endlessPlan = "{\"planType\":\"" + QByteArray(1'000'000, 'A') + "\"}";
        const auto row = [](const char* name, const char* rateLimits,
                            const ProviderQuotaSnapshot& expected) {
            QTest::newRow(name) << QByteArray(rateLimits) << expected;
        };
        row("a usual reply",
            R"({"limitId":"codex","primary":{"usedPercent":42,"windowDurationMins":300,
                "resetsAt":1795232147},"secondary":{"usedPercent":17,"windowDurationMins":10080,
                "resetsAt":1795484147},"credits":{"balance":0},"planType":"plus"})",
            {.planName = QStringLiteral("Plus"),
             .fiveHour = window(42, seconds{1'795'232'147}),
             .week = window(17, seconds{1'795'484'147})});
        row("swapped",
            R"({"primary":{"usedPercent":1,"windowDurationMins":10080},
                "secondary":{"usedPercent":2,"windowDurationMins":300},"planType":"team_pro"})",
            {.planName = QStringLiteral("Team Pro"), .fiveHour = window(2), .week = window(1)});
        row("no durations",
            R"({"primary":{"usedPercent":12.5,"resetsAt":1750000000},
                "secondary":{"usedPercent":2,"windowDurationMins":null}})",
            {.fiveHour = window(12.5, seconds{1'750'000'000}), .week = window(2)});
        row("only the weekly window",
            R"({"primary":null,"secondary":{"usedPercent":120,"windowDurationMins":10080}})",
            {.week = window(120)});
        row("one window serves as both",
            R"({"primary":{"usedPercent":3,"windowDurationMins":6000},"secondary":{}})",
            {.fiveHour = window(3), .week = window(3)});
        row("just past both limits",
            R"({"primary":{"usedPercent":4,"windowDurationMins":361},
                "secondary":{"usedPercent":5,"windowDurationMins":5999}})",
            {.fiveHour = window(4), .week = window(5)});
        row("just within, fractions dropped",
            R"({"primary":{"usedPercent":4,"windowDurationMins":400},
                "secondary":{"usedPercent":5,"windowDurationMins":360.9}})",
            {.fiveHour = window(5), .week = window(5)});
        row("numbers beyond every integer",
            R"({"primary":{"usedPercent":6,"windowDurationMins":-1e300,"resetsAt":1e300},
                "secondary":{"usedPercent":7,"windowDurationMins":1e300,"resetsAt":0}})",
            {.fiveHour = window(6), .week = window(7, seconds{0})});
        row("a hostile plan", "{\"planType\":\"\\u001b[31mTEAM\\u202e_\\npro_\\ud800\"}",
            {.planName = QStringLiteral("Team  Pro ")});
        row("an endless plan", endlessPlan.constData(),
            {.planName = QString(u'A') + QString(55, u'a') + QStringLiteral(" … (cut)")});
        row("members of other types",
            R"({"primary":{"usedPercent":"8"},"secondary":[9],"planType":1})", {});
    }

    void picksTheWindows() {
        QFETCH(QByteArray, rateLimits);
        QFETCH(ProviderQuotaSnapshot, expected);
        expected.syncedAt = now;
        expected.syncState = model::QuotaSyncState::current;
        const auto reply = providers::parseObject(
            R"({"id":1,"error":null,"result":{"rateLimits":)" + rateLimits + "}}");
        QVERIFY(reply);
        const auto snapshot = providers::parseRateLimitsReply(*reply, now);
        QVERIFY(snapshot);
        QCOMPARE(snapshot->planName, expected.planName);
        QVERIFY(*snapshot == expected);
    }

    void fails_data() {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("expected");

        const QString corrupt = QStringLiteral("The reply of the Codex CLI could not be read.");
        QTest::newRow("error") << QByteArray(R"({"error":{"code":-1,"message":"no."},"id":1})")
                               << QStringLiteral("Command failed (-1): no.");
        QTest::newRow("error without a message")
            << QByteArray(R"({"error":{"message":7},"result":{"rateLimits":{}}})")
            << QStringLiteral("Command failed (-1): Codex returned an unknown error.");
        QTest::newRow("hostile error")
            << QByteArray(
                   "{\"error\":{\"message\":\"\\u001b]0;x\\u0007no\\u009b2K\\u202e.\\n\\ud800\"}}")
            << QStringLiteral("Command failed (-1): no.\n");
        QTest::newRow("endless error")
            << "{\"error\":{\"message\":\"" + QByteArray(1'000'000, 'n') + "\"}}"
            << QStringLiteral("Command failed (-1): ") + QString(4088, u'n') +
                   QStringLiteral(" … (cut)");
        QTest::newRow("no result") << QByteArray(R"({"error":"no object"})") << corrupt;
        QTest::newRow("no limits") << QByteArray(R"({"result":{"rateLimits":null}})") << corrupt;
    }

    void fails() {
        QFETCH(QByteArray, reply);
        const auto object = providers::parseObject(reply);
        QVERIFY(object);
        const auto snapshot = providers::parseRateLimitsReply(*object, now);
        QVERIFY(!snapshot);
        QTEST(providers::quotaFailure(snapshot.error()).text, "expected");
    }
};

TALLYVANE_TEST_MAIN(TestRateLimitsReply)
#include "rate_limits_reply_test.moc"
