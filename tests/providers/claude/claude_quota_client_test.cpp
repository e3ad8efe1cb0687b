#include "providers/claude/claude_quota_client.h"
#include "support/fake_secret_store.h"
#include "support/home_files.h"
#include "support/manual_clock.h"
#include "support/test_main.h"
#include "support/tls_server.h"

using namespace tallyvane;
using namespace std::chrono_literals;
using tests::httpReply;
using tests::ScriptedReply;
using Script = QList<ScriptedReply>;

namespace {

constexpr model::Timestamp now = std::chrono::sys_days{std::chrono::year{2026} / 4 / 10};
const QByteArray usage = R"({"five_hour":{"utilization":37.5}})";

QByteArray record(const QByteArray& token, std::chrono::seconds validFor = 1h) {
    const auto expiry = std::chrono::milliseconds{(now + validFor).time_since_epoch() / 1ms};
    return R"({"claudeAiOauth":{"accessToken":")" + token + R"(","expiresAt":)" +
           QByteArray::number(qint64{expiry.count()}) + R"(,"subscriptionType":"claude_max"}})";
}

QString outcome(const std::expected<model::ProviderQuotaSnapshot, providers::ClaudeFetchError>& r) {
    return r ? QStringLiteral("%1: %2").arg(*r->planName).arg(r->fiveHour->usedPercent)
             : providers::description(r.error());
}

const QString figures = QStringLiteral("Claude Max: 37.5");

} // namespace

class ClaudeQuotaClientTest : public tests::HermeticTest {
    Q_OBJECT

    const tests::TlsIdentity m_identity = tests::makeTlsIdentity();
    const QString m_file = QDir::homePath() + QStringLiteral("/credentials.json");
    tests::FakeSecretStore m_secrets;
    tests::ManualClock m_clock{now};

    void writeFile(const QByteArray& bytes) const { tests::writeFile(m_file, bytes); }

    providers::ClaudeQuotaSource sourceOf(const tests::TlsServer& server) const {
        providers::ClaudeQuotaSource source{.usageURL = server.url(QStringLiteral("/usage")),
                                            .credentialsFile = m_file.toStdString()};
        source.tls.emplace().setCaCertificates({m_identity.certificate});
        return source;
    }

    QString fetchFrom(const providers::ClaudeQuotaSource& source) {
        providers::ClaudeQuotaClient client(source, m_secrets, m_clock);
        return outcome(QCoro::waitFor(client.fetch()));
    }

private Q_SLOTS:
    void initTestCase() { cleanup(); }
    void cleanup() {
        writeFile(record("secret-token"));
        m_secrets = tests::FakeSecretStore();
    }

    void asksWithTheTokenAndNothingElse() {
        tests::TlsServer server(
            m_identity, {httpReply(200, usage, "Set-Cookie: a=b\r\n"), httpReply(200, usage)});
        providers::ClaudeQuotaClient client(sourceOf(server), m_secrets, m_clock);
        QCOMPARE(outcome(QCoro::waitFor(client.fetch())), figures);
        QCOMPARE(outcome(QCoro::waitFor(client.fetch())), figures);
        QCOMPARE(m_secrets.lookups, 1);
        QCOMPARE(server.requests().size(), 2);
        for (const QByteArrayList& request : server.requests()) {
            QCOMPARE(request.first(), "GET /usage HTTP/1.1");
            QVERIFY(request.contains("Authorization: Bearer secret-token"));
            QVERIFY(request.contains("anthropic-beta: oauth-2025-04-20"));
            QVERIFY(!request.join().contains("Cookie"));
        }
    }

    void findsTheSignIn_data() {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("token"); // empty: nothing is sent
        QTest::addColumn<QString>("expected");
        const QString notFound = QStringLiteral("No sign-in of Claude Code was found.");
        const QString expired = QStringLiteral("The sign-in of Claude Code has expired.");
        const QByteArray tooLarge = record("file") + QByteArray(1024 * 1024, ' ');
        QTest::newRow("keyring first")
            << record("item") << record("file") << QByteArray("item") << figures;
        QTest::newRow("broken item")
            << QByteArray("{") << record("file") << QByteArray("file") << figures;
        QTest::newRow("neither") << QByteArray() << QByteArray() << QByteArray() << notFound;
        QTest::newRow("expired item")
            << record("item", 0s) << record("file") << QByteArray() << expired;
        QTest::newRow("file too large") << QByteArray() << tooLarge << QByteArray() << notFound;
    }
    void findsTheSignIn() {
        QFETCH(const QByteArray, item);
        QFETCH(const QByteArray, file);
        QFETCH(const QByteArray, token);
        m_secrets.items.insert(QStringLiteral("Claude Code-credentials"), item);
        writeFile(file);
        tests::TlsServer server(m_identity, {httpReply(200, usage)});
        QTEST(fetchFrom(sourceOf(server)), "expected");
        QCOMPARE(server.requests().size(), token.isEmpty() ? 0 : 1);
        QVERIFY(token.isEmpty() ||
                server.requests().first().contains("Authorization: Bearer " + token));
    }

    void asksOnceMoreWithTheNewToken() {
        ScriptedReply refusal = httpReply(401, {});
        refusal.before = [this] { writeFile(record("new")); };
        tests::TlsServer server(m_identity, {refusal, httpReply(200, usage)});
        QCOMPARE(fetchFrom(sourceOf(server)), figures);
        QVERIFY(server.requests().last().contains("Authorization: Bearer new"));
    }

    void understandsAnswers_data() {
        using Ending = ScriptedReply::Ending;
        QTest::addColumn<Script>("script");
        QTest::addColumn<QString>("expected"); // the start of it
        const auto row = [](const char* name, const Script& script, const char* expected) {
            QTest::newRow(name) << script << QStringLiteral("The ") + QString::fromLatin1(expected);
        };
        const char* malformed = "answer of the Claude service was not understood.";
        const char* unreachable = "Claude service could not be reached: ";
        row("401 twice", {httpReply(401, {}), httpReply(401, {})},
            "Claude service did not accept the sign-in of Claude Code.");
        row("429", {httpReply(429, usage)}, "Claude service was asked too many times.");
        row("500", {httpReply(500, usage)}, "Claude service answered with status 500.");
        row("204", {httpReply(204, {})}, "Claude service answered with status 204.");
        row("redirect", {httpReply(302, {}, "Location: /elsewhere\r\n")},
            "Claude service answered with status 302.");
        row("not JSON", {httpReply(200, "<html>")}, malformed);
        row("too large", {httpReply(200, usage + QByteArray(4 * 1024 * 1024, ' '))}, malformed);
        row("too large without an end",
            {{"HTTP/1.1 200 OK\r\n\r\n" + QByteArray(5 * 1024 * 1024, ' '), Ending::keepsOpen}},
            malformed);
        row("closed in the body", {{"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n{}"}},
            unreachable);
        // Qt sends a request again whose connection ends without an answer.
        row("not HTTP", {{"220 mail.example ESMTP\r\n", Ending::alwaysCloses}}, unreachable);
        row("closed before the answer", {{{}, Ending::alwaysCloses}}, unreachable);
    }
    void understandsAnswers() {
        QFETCH(const Script, script);
        QFETCH(const QString, expected);
        tests::TlsServer server(m_identity, script);
        const QString actual = fetchFrom(sourceOf(server));
        QVERIFY2(actual.startsWith(expected), qPrintable(actual));
        QVERIFY(!actual.contains(QStringLiteral("secret-token")));
        QVERIFY(server.requests().size() >= script.size());
        QCOMPARE(m_clock.pendingAlarms(), 0u);
    }

    void givesUpAfterFifteenSeconds_data() {
        QTest::addColumn<ScriptedReply>("reply");
        QTest::addColumn<int>("drips");
        QTest::newRow("silent") << ScriptedReply{{}, ScriptedReply::Ending::keepsOpen} << 0;
        QTest::newRow("dripping") << ScriptedReply{"HTTP/1.1 200 OK\r\n\r\n",
                                                   ScriptedReply::Ending::drips}
                                  << 20;
    }
    void givesUpAfterFifteenSeconds() {
        QFETCH(const ScriptedReply, reply);
        QFETCH(const int, drips);
        tests::TlsServer server(m_identity, {reply});
        providers::ClaudeQuotaClient client(sourceOf(server), m_secrets, m_clock);
        auto fetch = client.fetch();
        QTRY_VERIFY(server.requests().size() == 1 && server.drips() >= drips);
        m_clock.advance(15s - 1ms);
        QVERIFY(!fetch.isReady());
        m_clock.advance(1ms);
        QVERIFY(fetch.isReady());
        QVERIFY(outcome(QCoro::waitFor(std::move(fetch)))
                    .endsWith(QStringLiteral("too long to answer.")));
    }

    void sendsNothingWhereItMustNot() {
        tests::TlsServer server(m_identity, {});
        auto source = sourceOf(server);
        source.tls.emplace().setCaCertificates({});
        const QString unreachable = QStringLiteral("The Claude service could not be reached: ");
        QVERIFY(fetchFrom(source).startsWith(unreachable));
        server.stop();
        QVERIFY(fetchFrom(sourceOf(server)).startsWith(unreachable));
        source.usageURL = QUrl::fromLocalFile(m_file); // readable, but no answer of a server
        QCOMPARE(fetchFrom(source),
                 QStringLiteral("The answer of the Claude service was not understood."));
        QVERIFY(server.requests().isEmpty());
    }
};

TALLYVANE_TEST_MAIN(ClaudeQuotaClientTest)
#include "claude_quota_client_test.moc"
