#include "fault/secret_watch.h"
#include "fault/stored_files.h"
#include "model/defaults_store.h"
#include "support/private_network.h"
#include "support/running_program.h"
#include "support/scripted_proxy.h"
#include "support/tls_server.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>
#include <QtNetwork/QUdpSocket>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tests::httpReply;
using tests::readFile;
using tests::ScriptedReply;
using tests::writeFile;

namespace {

const QByteArray accessToken = "tallyvane-test-5ecret";
const QByteArray usage = R"({"five_hour":{"utilization":37.5}})";

/// The program on its way through one fault, in a home of its own.
struct Run {
    QString home;
    std::unique_ptr<tests::TlsServer> server;
    QByteArray expected; ///< the start of the one line that the user reads; empty for none
    tests::RunningProgram program;
    tests::RunningProgram other; ///< a second one in the same home

    [[nodiscard]] QString path(const char* name) const { return home + u'/' + QLatin1String(name); }

    void signIn(const QByteArray& accessToken) const {
        const auto expiry = (std::chrono::system_clock::now() + 1h).time_since_epoch() / 1ms;
        writeFile(path(".claude/.credentials.json"), R"({"claudeAiOauth":{"accessToken":")" +
                                                         accessToken + R"(","expiresAt":)" +
                                                         QByteArray::number(qint64{expiry}) + "}}");
    }

    void installCodex(const char* program) const {
        QDir().mkpath(path(".local/bin"));
        QFile::link(QStringLiteral(TALLYVANE_TEST_DATA "/codex-programs/") + QLatin1String(program),
                    path(".local/bin/codex"));
    }

    /// Lets codex tell of a hundredth more of the weekly quota and of ten tokens more each time.
    void installRisingCodex() const {
        writeFile(path(".local/bin/codex"), R"(#!/bin/sh
n=$(($(cat "$HOME/served") + 1))
echo $n >"$HOME/served-$$" && mv "$HOME/served-$$" "$HOME/served"
echo '{"payload":{"type":"token_count","info":{"total_token_usage":{"total_tokens":'$((n * 10))'}}}}' \
    >>"$HOME/.codex/sessions/log.jsonl"
echo '{"id":1,"result":{"rateLimits":{"secondary":{"usedPercent":'$n'e-2}}}}'
cat
)");
        writeFile(path("served"), "0");
        writeFile(path(".codex/sessions/log.jsonl"), {});
    }

    /// Whether the history holds something, and no more than that codex has told of.
    [[nodiscard]] bool countsNothingTwice() const {
        const auto history =
            history::decodeHistory(readFile(path("data/Gaugewell/usage-history.json")));
        const int served = readFile(path("served")).trimmed().toInt();
        double quota = 0;
        std::int64_t tokens = 0;
        for (const auto& point : history.value_or(history::UsageHistory()).points) {
            quota += point.estimatedQuotaConsumed;
            tokens += point.estimatedLocalTokens;
        }
        qInfo() << served << "times:" << quota << "%," << tokens << "tokens";
        return quota > 0 && quota < (served - 1) * 0.01 + 1e-9 && tokens > 0 &&
               tokens <= (served - 1) * 10;
    }

    /// Runs a command of the shell in which $0 is the program.
    void start(QProcess& started, const QByteArray& command = "exec \"$0\" refresh",
               const QString& httpProxy = {}) const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home);
        environment.insert(u"XDG_DATA_HOME"_s, path("data"));
        environment.insert(u"XDG_CONFIG_HOME"_s, path("config"));
        environment.insert(u"http_proxy"_s, httpProxy);
        started.setProcessEnvironment(environment);
        started.setStandardOutputFile(path("output"));
        started.setStandardErrorFile(path("errors"));
        started.start(u"/bin/sh"_s,
                      {u"-c"_s, QString::fromUtf8(command), QStringLiteral(TALLYVANE_PROGRAM)});
    }
};

} // namespace

/// The command line against a network, a service and children that do what they should not.
class FaultsTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateNetwork m_network;
    const tests::TlsIdentity m_identity = tests::makeTlsIdentity(u"DNS:api.anthropic.com"_s);
    QUdpSocket m_silentResolver;
    tests::ScriptedProxy m_silentServer{{}};
    QTcpServer m_fullServer;
    QTcpSocket m_filling;
    std::vector<std::unique_ptr<Run>> m_runs;
    const tests::SecretWatch m_watch{accessToken, u".credentials.json"_s};

    /// A home where the service is at these addresses: "%" is a server that gives the replies.
    Run& addRun(const QList<ScriptedReply>& replies, const QByteArrayList& addresses = {"%"}) {
        Run& run = *m_runs.emplace_back(std::make_unique<Run>());
        run.home = u"%1/run-%2"_s.arg(QDir::homePath()).arg(m_runs.size());
        run.signIn(accessToken);
        const auto own = u"127.0.1.%1"_s.arg(m_runs.size());
        if (addresses.contains("%")) {
            run.server =
                std::make_unique<tests::TlsServer>(m_identity, replies, QHostAddress(own), 443);
        }
        QByteArray hosts;
        for (const QByteArray& address : addresses) {
            hosts += (address == "%" ? own.toUtf8() : address) + " api.anthropic.com\n";
        }
        writeFile(run.path("hosts"), hosts);
        return run;
    }

    /// Lets the program refresh in a new home, and later tell `expected`.
    void startRun(const char* expected, const QList<ScriptedReply>& replies,
                  const QByteArrayList& addresses = {"%"}, const char* codex = "reply-amid-noise",
                  const QString& httpProxy = {}) {
        Run& run = addRun(replies, addresses);
        run.expected = expected;
        run.installCodex(codex);
        run.start(run.program,
                  "exec unshare --mount sh -c 'mount --bind \"$HOME/hosts\" /etc/hosts && "
                  "exec \"$0\" refresh' \"$0\"",
                  httpProxy);
    }

public:
    FaultsTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() {
        if (!m_network.isUsable()) {
            TALLYVANE_SKIP(std::strerror(errno)); // mostly: this user may not
        }
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
        const char* const late = "tallyvane: Claude: The Claude service could not be reached: it "
                                 "took too long to answer.";
        ScriptedReply renewing = httpReply(401, accessToken);
        renewing.before = [this] { m_runs.front()->signIn(accessToken + "-new"); };
        // Whatever has the token in it is what a service may say that echoes it.
        const QByteArray echo =
            "X-Echo: " + accessToken + "\r\nSet-Cookie: a=" + accessToken + "\r\n";
        const ScriptedReply good = httpReply(200, usage, echo);
        startRun("", {renewing, good});
        startRun("", {good}, {"127.0.2.1", "%"}); // The first address is silent.
        startRun("tallyvane: Claude: The Claude service answered with status 500.",
                 {{"HTTP/1.1 500 " + accessToken + "\r\n" + echo + "\r\n"}});
        startRun("tallyvane: Claude: The Claude service could not be reached: Network unreachable",
                 {}, {"192.0.2.1"}); // It is reserved for documents.
        startRun(late, {}, {});      // The resolver is silent.
        const QString script = u"pac+http://127.0.0.1:%1/pac"_s.arg(m_silentServer.port());
        startRun(late, {}, {"%"}, "reply-amid-noise", script);
        startRun("tallyvane: Codex: Command timed out.", {good}, {"%"}, "launcher-ends");
        startRun("tallyvane: Codex: ", {good}, {"%"}, "refuses-to-end");
        for (const auto& run : m_runs) {
            QVERIFY(run->program.hasEnded());
            const QByteArray errors = readFile(run->path("errors"));
            QVERIFY2(errors.startsWith(run->expected), errors);
            QCOMPARE(errors.count('\n'), run->expected.isEmpty() ? 0 : 1);
            QCOMPARE(run->program.exitCode(), run->expected.isEmpty() ? 0 : 3);
        }
        TALLYVANE_TRY_VERIFY(tests::processesIn(qgetenv("HOME")).isEmpty());
    }

    /// Of two programs at once in one home.
    void survivesKillsAtAnyInstant() {
        ScriptedReply reply = httpReply(200, usage);
        reply.ending = ScriptedReply::Ending::alwaysCloses;
        Run& run = addRun({reply});
        run.installRisingCodex();
        tests::PrivateNetwork::replace("/etc/hosts", readFile(run.path("hosts")));
        const std::array programs{&run.program, &run.other};
        const auto startBoth = [&] {
            run.start(run.program);
            run.start(run.other);
        };
        const auto refreshBoth = [&] {
            startBoth();
            return run.program.hasEnded() && run.other.hasEnded() && run.program.exitCode() == 0 &&
                   run.other.exitCode() == 0;
        };
        QElapsedTimer timer;
        timer.start();
        QVERIFY(refreshBoth());
        const auto length = static_cast<int>(timer.elapsed());

        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        qsizetype kills = 0;
        for (int round = 0; round < FAULT_ROUNDS / 2; ++round) {
            const QObject scope; // no kill outlives its round
            startBoth();
            for (QProcess* program : programs) {
                QTimer::singleShot(random.bounded(length), &scope, [program] { program->kill(); });
            }
            QVERIFY(run.program.hasEnded() && run.other.hasEnded());
            const auto settings = run.path("config/group.corvelle.Gaugewell.conf").toStdString();
            QVERIFY2(tests::areFilesWhole(run.path("data")) && model::DefaultsStore::open(settings),
                     qPrintable(QString::number(seed)));
            kills += std::ranges::count(programs, QProcess::CrashExit, &QProcess::exitStatus);
        }
        qInfo() << kills << "kills within" << length << "ms, seed" << seed;
        QVERIFY(kills > 0 && refreshBoth() && run.countsNothingTwice());
        TALLYVANE_TRY_VERIFY(tests::processesIn(qgetenv("HOME")).isEmpty());
    }

    /// Sometimes there is room for one of the program's files and not for another.
    void countsOnceOnANearlyFullDisk() {
        Run& run = addRun({}, {"127.0.0.9"});
        tests::PrivateNetwork::replace("/etc/hosts", readFile(run.path("hosts")));
        run.installRisingCodex();
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo() << "seed" << seed;
        QRandomGenerator random(seed);
        const QByteArray home = run.home.toUtf8();
        for (const QByteArray place : {"/data", "/config"}) {
            tests::output("mkdir -p " + home + place);
            tests::output("mount -t tmpfs -o size=64k none " + home + place);
        }
        int failures = 0;
        for (int round = 0; round < FAULT_ROUNDS / 5; ++round) {
            const auto pages = [&random] { return QByteArray::number(4096 * random.bounded(7)); };
            run.start(run.program, "leave() { head -c 64k /dev/zero >\"$HOME/$1/filler\"; "
                                   "truncate -s -$2 \"$HOME/$1/filler\"; }; leave data " +
                                       pages() + "; leave config " + pages() +
                                       "; exec \"$0\" refresh");
            QVERIFY(run.program.hasEnded());
            failures += run.program.exitCode() == 1 ? 1 : 0;
        }
        QVERIFY(failures > 0 && run.countsNothingTwice());
        tests::output("umount " + home + "/data " + home + "/config");
    }

    void keepsTheTokenToItself() {
        QCOMPARE(m_watch.findings({"tallyvane", "codex"}), QStringList());
        int requests = 0;
        for (const auto& run : m_runs) {
            const auto received = run->server ? run->server->requests() : QList<QByteArrayList>();
            for (const QByteArrayList& request : received) {
                QCOMPARE(request.join().count(accessToken), 1);
                QVERIFY(request.join('\n').contains("\nAuthorization: Bearer " + accessToken));
                ++requests;
            }
        }
        QVERIFY(requests > 0);
    }
};

TALLYVANE_TEST(FaultsTest)
#include "faults_test.moc"
