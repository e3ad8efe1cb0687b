#include "fault/secret_watch.h"
#include "support/private_network.h"
#include "support/tls_server.h"

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtNetwork/QUdpSocket>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using tests::httpReply;
using tests::readFile;
using tests::ScriptedReply;
using tests::writeFile;

namespace {

const QByteArray accessToken = "tallyvane-test-5ecret";

/// The program on its way through one fault, in a home of its own.
struct Trial {
    QString home;
    QByteArray expected; ///< the start of the one line that the user reads; empty for none
    tests::TlsServer server;
    tests::RunningProgram program;
};

} // namespace

/// The command line against a network, a service and children that do what they should not.
class FaultsTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateNetwork m_network;
    const tests::TlsIdentity m_identity = tests::makeTlsIdentity(u"DNS:api.anthropic.com"_s);
    QUdpSocket m_silentResolver;
    QTcpServer m_fullServer;
    QTcpSocket m_filling;
    std::vector<std::unique_ptr<Trial>> m_runs;
    const tests::SecretWatch m_watch{accessToken};

    /// Lets the program refresh in a new home, and later tell `expected`. The service is at these
    /// addresses: "%" is a server that gives the replies.
    void start(const char* expected, const QList<ScriptedReply>& replies,
               const QByteArrayList& addresses = {"%"}, const char* codex = "reply-amid-noise") {
        const auto number = m_runs.size() + 1;
        const QString home = u"%1/run-%2"_s.arg(QDir::homePath()).arg(number);
        const QString ownAddress = u"127.0.1.%1"_s.arg(number);
        Trial& run = *m_runs.emplace_back(
            new Trial{.home = home,
                      .expected = expected,
                      .server = {m_identity, replies, QHostAddress(ownAddress), 443}});
        QByteArray hosts;
        for (const QByteArray& address : addresses) {
            hosts += address + " api.anthropic.com\n";
        }
        writeFile(home + u"/hosts"_s, hosts.replace('%', ownAddress.toUtf8()));
        writeFile(home + u"/.claude/.credentials.json"_s,
                  R"({"claudeAiOauth":{"accessToken":")" + accessToken + R"(","expiresAt":4e12}})");
        QDir(home).mkpath(u".local/bin"_s);
        QFile::link(QStringLiteral(TALLYVANE_TEST_DATA "/codex-programs/") + QLatin1String(codex),
                    home + u"/.local/bin/codex"_s);
        run.program.start(u"unshare"_s, {u"--mount"_s, u"sh"_s, u"-c"_s, uR"(export HOME="$1"
mount --bind "$HOME/hosts" /etc/hosts
exec "$0" refresh >"$HOME/output" 2>"$HOME/errors")"_s,
                                         QStringLiteral(TALLYVANE_PROGRAM), home});
    }

public:
    FaultsTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() {
        if (!m_network.isUsable()) {
            TALLYVANE_SKIP(std::strerror(errno)); // mostly: this user may not
        }
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_CONFIG_HOME");
        m_silentResolver.bind(QHostAddress(u"127.0.0.53"_s), 53);
        // What comes once its queue is full, it does not answer.
        m_fullServer.setListenBacklogSize(0);
        m_fullServer.listen(QHostAddress(u"127.0.2.1"_s), 443);
        m_fullServer.pauseAccepting();
        m_filling.connectToHost(m_fullServer.serverAddress(), 443);
        QVERIFY(m_filling.waitForConnected());
        tests::PrivateNetwork::replace("/etc/resolv.conf",
                                       "nameserver 127.0.0.53\noptions timeout:30 attempts:5\n");
        tests::PrivateNetwork::trust(m_identity.certificate, "service");
    }

    /// What the whole program waits for, by its own clock; all at once.
    void tellsWhatIsWrong() {
        // Whatever has the token in it is what a service may say that echoes it.
        const QByteArray echo =
            "X-Echo: " + accessToken + "\r\nSet-Cookie: a=" + accessToken + "\r\n";
        const ScriptedReply good = httpReply(200, R"({"five_hour":{"utilization":37.5}})", echo);
        start("", {good}, {"127.0.2.1", "%"}); // The first address is silent.
        start("tallyvane: Claude: The Claude service answered with status 500.",
              {{"HTTP/1.1 500 " + accessToken + "\r\n" + echo + "\r\n"}});
        start("tallyvane: Claude: The Claude service could not be reached: Network unreachable", {},
              {"192.0.2.1"}); // It is reserved for documents.
        start("tallyvane: Claude: The Claude service could not be reached: it took too long to "
              "answer.",
              {}, {}); // The resolver is silent.
        start("tallyvane: Codex: Command timed out.", {good}, {"%"}, "launcher-ends");
        start("tallyvane: Codex: ", {good}, {"%"}, "refuses-to-end");
        for (const auto& run : m_runs) {
            QVERIFY(run->program.hasEnded());
            const QByteArray errors = readFile(run->home + u"/errors"_s);
            QVERIFY2(errors.startsWith(run->expected), errors);
            QCOMPARE(errors.count('\n'), run->expected.isEmpty() ? 0 : 2);
            QCOMPARE(run->program.exitCode(), run->expected.isEmpty() ? 0 : 3);
        }
        TALLYVANE_TRY_VERIFY(tests::processesIn(qgetenv("HOME")).isEmpty());
    }

    void keepsTheTokenToItself() {
        QCOMPARE(m_watch.leaks(), "");
        QVERIFY(m_watch.hasSeen("/.local/bin/codex"));
        int requests = 0;
        for (const auto& run : m_runs) {
            for (const QByteArrayList& request : run->server.requests()) {
                QCOMPARE(request.join().count(accessToken), 1);
                QVERIFY(request.contains("Authorization: Bearer " + accessToken));
                ++requests;
            }
        }
        QCOMPARE(requests, 4);
    }
};

TALLYVANE_TEST(FaultsTest)
#include "faults_test.moc"
