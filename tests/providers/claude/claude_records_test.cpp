#include "providers/claude/claude_credentials.h"
#include "providers/claude/claude_quota_error.h"
#include "providers/claude/usage_reply.h"
#include "support/test_main.h"

using namespace tallyvane;
using namespace std::chrono_literals;

namespace {

constexpr model::Timestamp now = std::chrono::sys_days{std::chrono::year{2026} / 4 / 10};

QString text(const std::optional<model::Timestamp>& timestamp) {
    return timestamp ? model::formatTimestamp(*timestamp) : QStringLiteral("-");
}

QString text(const std::optional<model::QuotaWindowSnapshot>& window) {
    return QStringLiteral("%1 %2").arg(window->usedPercent).arg(text(window->resetsAt));
}

} // namespace

class ClaudeRecordsTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void leavesAShortText() {
        using Error = providers::ClaudeQuotaError;
        const std::pair<providers::ClaudeFetchError, const char*> rows[] = {
            {Error{Error::Kind::noCredentials}, "Keychain auth"},
            {Error{Error::Kind::tokenExpired}, "Sign-in expired"},
            {Error{Error::Kind::httpStatus, 401}, "Sign-in expired"},
            {Error{Error::Kind::rateLimited}, "Rate limited"},
            {providers::TransportError{}, "Network error"},
            {Error{Error::Kind::httpStatus, 500}, ""},
            {Error{Error::Kind::malformedResponse}, ""},
        };
        for (const auto& [error, text] : rows) {
            const providers::QuotaFailure failure = providers::quotaFailure(error);
            QCOMPARE(failure.shownAt, providers::QuotaFailure::Place::besideFigures);
            QCOMPARE(failure.shortText.value_or(QString()), QString::fromLatin1(text));
        }
    }

    void readsSignInRecords_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("expected"); // token, expiry, plan; empty: unusable
        const auto row = [](const char* name, const QByteArray& members, const char* expected) {
            QTest::newRow(name) << "{\"claudeAiOauth\":{" + members + "}}"
                                << QString::fromUtf8(expected);
        };
        row("whole", R"("accessToken":"sk-1","expiresAt":1700000000000,"subscriptionType":"max")",
            "sk-1 2023-11-14T22:13:20Z max");
        row("token alone", R"("accessToken":"sk-é")", "sk-é - -");
        row("other types", R"("accessToken":"t","expiresAt":"1700000000000","subscriptionType":7)",
            "t - -");
        row("expiry too late", R"("accessToken":"t","expiresAt":1e300)",
            "t 9999-12-31T00:00:00Z -");
        row("expiry too early", R"("accessToken":"t","expiresAt":-1e17)",
            "t 0000-01-01T00:00:00Z -");
        row("no token", R"("expiresAt":1700000000000)", "");
        row("empty token", R"("accessToken":"")", "");
        row("token is a number", R"("accessToken":5)", "");
        row("token that adds a header", R"("accessToken":"t\r\nX-Header: 1")", "");
        row("token with a NUL", R"("accessToken":"t\u0000")", "");
        QTest::newRow("no sign-in") << QByteArray(R"({"accessToken":"t"})") << QString();
        QTest::newRow("array") << QByteArray(R"([{"claudeAiOauth":{}}])") << QString();
        QTest::newRow("cut off") << QByteArray(R"({"claudeAiOauth":{"accessToken":"t")")
                                 << QString();
    }
    void readsSignInRecords() {
        QFETCH(const QByteArray, json);
        const auto record = providers::parseSignInRecord(json);
        QTEST(record ? QStringLiteral("%1 %2 %3")
                           .arg(QString::fromUtf8(record->accessToken), text(record->expiresAt),
                                record->subscriptionType.value_or(QStringLiteral("-")))
                     : QString(),
              "expected");
    }

    void servesOnlyTokensValidForAMinute() {
        providers::TokenCache cache;
        providers::Credentials credentials{.accessToken = "t"};
        const auto isServed = [&](std::optional<model::Timestamp> expiry) {
            credentials.expiresAt = expiry;
            cache.replace(credentials);
            return cache.usableAt(now) == credentials;
        };
        QVERIFY(!cache.usableAt(now));
        QVERIFY(!isServed(std::nullopt));
        QVERIFY(!isServed(now + 60s));
        QVERIFY(isServed(now + 60s + 1us));
        cache.clear();
        QVERIFY(!cache.usableAt(now));
    }

    void readsUsageReplies_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("expected"); // percent and reset of both windows
        const auto row = [](const char* name, const char* body, const char* expected) {
            QTest::newRow(name) << QByteArray(body) << QString::fromUtf8(expected);
        };
        row("as seen",
            R"({"five_hour":{"utilization":33.0,"resets_at":"2026-04-11T07:00:00.528743+00:00"},
                "seven_day":{"utilization":105.5,"resets_at":"2026-04-14T07:00:00Z"},
                "seven_day_opus":null,"extra_usage":{"is_enabled":false}})",
            "33 2026-04-11T07:00:00Z, 105.5 2026-04-14T07:00:00Z");
        row("reset null or of another form",
            R"({"five_hour":{"utilization":37.5,"resets_at":null},
                "seven_day":{"utilization":1,"resets_at":"tomorrow"}})",
            "37.5 -, 1 -");
        row("utilization unreadable",
            R"({"five_hour":{"utilization":"37","resets_at":"2026-04-14T07:00:00Z"},
                "seven_day":{"resets_at":"2026-04-14T07:00:00Z"}})",
            "0 -, 0 -");
        row("windows of other types", R"({"five_hour":null,"seven_day":[1]})", "0 -, 0 -");
        row("empty object", "{}", "0 -, 0 -");
        row("empty array", "[]", "malformed");
        row("not JSON", "<html>", "malformed");
        row("nothing", "", "malformed");
    }
    void readsUsageReplies() {
        QFETCH(const QByteArray, body);
        const auto snapshot = providers::parseUsageReply(body, QStringLiteral("team_premium"), now);
        if (!snapshot) {
            QCOMPARE(snapshot.error().kind, providers::ClaudeQuotaError::Kind::malformedResponse);
        } else {
            QCOMPARE(snapshot->provider, model::AIProvider::claude);
            QCOMPARE(snapshot->planName, QStringLiteral("Team Premium"));
            QCOMPARE(snapshot->syncedAt, now);
            QCOMPARE(snapshot->syncState, model::QuotaSyncState::current);
        }
        QTEST(snapshot ? text(snapshot->fiveHour) + QStringLiteral(", ") + text(snapshot->week)
                       : QStringLiteral("malformed"),
              "expected");
    }
};

TALLYVANE_TEST_MAIN(ClaudeRecordsTest)
#include "claude_records_test.moc"
