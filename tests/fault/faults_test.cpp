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

#include <sys/mount.h>

using namespace tallyvane;
using namespace std::chrono_literals;
using tests::httpReply;
using tests::patience;
using tests::ScriptedReply;

namespace {

const QByteArray accessToken = "tallyvane-test-5ecret";
const QString service = QStringLiteral("api.anthropic.com");
const QByteArray usage = R"({"five_hour":{"utilization":37.5}})";

/// What goes wrong in one run, and the one line that the user then reads.
struct Fault {
    enum class Service {
        trusted,
        untrusted,
        otherName,
        absent,
        unreachable,
        unresolved,
        atSecondAddress, ///< the first one does not answer
    };

    const char* name;
    const char* expected; ///< the start of it; null when all is well in the end
    QList<ScriptedReply> replies{httpReply(200, usage)};
    Service service = Service::trusted;
    const char* codex = "reply-amid-noise"; ///< of the scripted programs
    std::chrono::seconds tokenLife = 1h;
    QString httpProxy; ///< $http_proxy, which counts as the desktop's setting
};

/// The program on its way through one fault, in a home of its own.
struct Run {
    QString home;
    QString httpProxy;
    std::unique_ptr<tests::TlsServer> server;
    tests::RunningProgram program;
    tests::RunningProgram other; ///< a second one in the same home

    void signIn(const QByteArray& accessToken, std::chrono::seconds life) const {
        const auto expiry = (std::chrono::system_clock::now() + life).time_since_epoch() / 1ms;
        tests::writeFile(home + QStringLiteral("/.claude/.credentials.json"),
                         R"({"claudeAiOauth":{"accessToken":")" + accessToken +
                             R"(","expiresAt":)" + QByteArray::number(qint64{expiry}) + "}}");
    }

    void installCodex(const QString& program) const {
        QDir().mkpath(home + QStringLiteral("/.local/bin"));
        QFile::link(program, home + QStringLiteral("/.local/bin/codex"));
    }

    /// Lets codex tell of a hundredth more of the weekly quota and of ten tokens more each time.
    void installRisingCodex() const {
        QFile::remove(home + QStringLiteral("/.local/bin/codex")); // a link
        tests::writeFile(home + QStringLiteral("/.local/bin/codex"), R"(#!/bin/sh
n=$(($(cat "$HOME/served") + 1))
echo $n >"$HOME/served-$$" && mv "$HOME/served-$$" "$HOME/served"
echo '{"payload":{"type":"token_count","info":{"total_token_usage":{"total_tokens":'$((n * 10))'}}}}' \
    >>"$HOME/.codex/sessions/log.jsonl"
echo '{"id":1,"result":{"rateLimits":{"secondary":{"usedPercent":'$n'e-2}}}}'
cat
)");
        tests::writeFile(home + QStringLiteral("/served"), "0");
        tests::writeFile(home + QStringLiteral("/.codex/sessions/log.jsonl"), {});
    }

    /// Whether the history holds something, and no more than that codex has told of.
    [[nodiscard]] bool countsNothingTwice() const {
        const auto history = history::decodeHistory(
            tests::readFile(home + QStringLiteral("/data/Gaugewell/usage-history.json")));
        const int served = tests::readFile(home + QStringLiteral("/served")).trimmed().toInt();
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
    void start(const char* command) { start(command, program); }
    void start(const char* command, QProcess& started) const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home);
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/config"));
        environment.insert(QStringLiteral("http_proxy"), httpProxy);
        started.setProcessEnvironment(environment);
        started.setStandardOutputFile(home + QStringLiteral("/output"));
        started.setStandardErrorFile(home + QStringLiteral("/errors"));
        started.start(QStringLiteral("/bin/sh"),
                      {QStringLiteral("-c"), QString::fromLatin1(command),
                       QStringLiteral(TALLYVANE_PROGRAM)});
    }
};

} // namespace

/// The command line against a network, a service and children that do what they should not.
class FaultsTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateNetwork m_network;
    const tests::TlsIdentity m_identity = tests::makeTlsIdentity(QStringLiteral("DNS:") + service);
    QUdpSocket m_silentResolver;
    tests::ScriptedProxy m_silentServer{{}};
    QTcpServer m_fullServer;
    QTcpSocket m_filling;
    std::vector<std::unique_ptr<Run>> m_runs;
    const tests::SecretWatch m_watch{accessToken, QStringLiteral(".credentials.json")};

    std::vector<Fault> faults() {
        using Ending = ScriptedReply::Ending;
        using Service = Fault::Service;
        const char* const malformed =
            "Claude: The answer of the Claude service was not understood.";
        const char* const late = "Claude: The Claude service could not be reached: it took too "
                                 "long to answer.";
        const char* const refused =
            "Claude: The Claude service did not accept the sign-in of Claude Code.";
        const char* const silent = "Codex: Command timed out.";
        ScriptedReply renewing = httpReply(401, accessToken);
        renewing.before = [this] { m_runs.front()->signIn(accessToken + "-new", 1h); };
        // Whatever has the token in it is what a service may say that echoes it.
        const QByteArray echo =
            "X-Echo: " + accessToken + "\r\nSet-Cookie: a=" + accessToken + "\r\n";
        return {
            {"401, then a new token", nullptr, {renewing, httpReply(200, usage, echo)}},
            {.name = "expired sign-in",
             .expected = "Claude: The sign-in of Claude Code has expired.",
             .replies = {},
             .tokenLife = 0s},
            {"401 twice",
             refused,
             {httpReply(401, accessToken, echo), httpReply(401, accessToken, echo)}},
            {"500",
             "Claude: The Claude service answered with status 500.",
             {{"HTTP/1.1 500 " + accessToken + "\r\n" + echo + "\r\n"}}},
            {"redirect",
             "Claude: The Claude service answered with status 302.",
             {httpReply(302, {}, "Location: /" + accessToken + "\r\n")}},
            {"huge body", malformed, {httpReply(200, usage + QByteArray(5 << 20, ' '))}},
            {"silent", late, {{{}, Ending::keepsOpen}}},
            {"dripping", late, {{"HTTP/1.1 200 " + accessToken + "\r\n\r\n", Ending::drips}}},
            {"cut off",
             "Claude: The Claude service could not be reached: ",
             {{"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n" + accessToken}}},
            {"refused connection",
             "Claude: The Claude service could not be reached: Connection refused",
             {},
             Service::absent},
            {"no route",
             "Claude: The Claude service could not be reached: Network unreachable",
             {},
             Service::unreachable},
            {"untrusted certificate",
             "Claude: The Claude service could not be reached: SSL",
             {},
             Service::untrusted},
            {"certificate of another",
             "Claude: The Claude service could not be reached: ",
             {},
             Service::otherName},
            {"silent resolver", late, {}, Service::unresolved},
            {.name = "silent server of the proxy script",
             .expected = late,
             .replies = {},
             .httpProxy = QStringLiteral("pac+http://127.0.0.1:%1/pac").arg(m_silentServer.port())},
            {.name = "silent address", .expected = nullptr, .service = Service::atSecondAddress},
            {.name = "codex is no program", .expected = "Codex: ", .codex = "no-program"},
            {.name = "codex floods", .expected = silent, .codex = "floods"},
            {.name = "codex leaves a grandchild", .expected = silent, .codex = "launcher-ends"},
            {.name = "codex stays behind a grandchild",
             .expected = "Codex: Command failed (-1): sign in",
             .codex = "launcher-stays"},
            {.name = "codex does not obey", .expected = "Codex: ", .codex = "refuses-to-end"},
        };
    }

    std::unique_ptr<Run> makeRun(const Fault& fault) {
        auto run = std::make_unique<Run>();
        const qsizetype number = std::ssize(m_runs) + 1;
        run->home = QStringLiteral("%1/run-%2").arg(QDir::homePath()).arg(number);
        run->httpProxy = fault.httpProxy;
        run->signIn(accessToken, fault.tokenLife);
        run->installCodex(QStringLiteral(TALLYVANE_TEST_DATA "/codex-programs/") +
                          QLatin1StringView(fault.codex));
        using Service = Fault::Service;
        QHostAddress address(QStringLiteral("127.0.1.%1").arg(number));
        tests::TlsIdentity identity = m_identity;
        if (fault.service == Service::unreachable) {
            address = QHostAddress(QStringLiteral("192.0.2.1")); // reserved for documents
        } else if (fault.service == Service::untrusted) {
            identity = tests::makeTlsIdentity(QStringLiteral("DNS:") + service);
        } else if (fault.service == Service::otherName) {
            identity = tests::makeTlsIdentity();
            tests::PrivateNetwork::trust(identity.certificate, "other");
        }
        if (fault.service != Service::absent && fault.service != Service::unreachable) {
            run->server = std::make_unique<tests::TlsServer>(identity, fault.replies, address, 443);
        }
        const QByteArray line = (address.toString() + u' ' + service + u'\n').toUtf8();
        QByteArray hosts = fault.service == Service::unresolved ? QByteArray() : line;
        if (fault.service == Service::atSecondAddress) {
            hosts =
                (m_fullServer.serverAddress().toString() + u' ' + service + u'\n').toUtf8() + line;
        }
        tests::writeFile(run->home + QStringLiteral("/hosts"), hosts);
        return run;
    }

public:
    FaultsTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() {
        if (!m_network.isUsable()) {
            TALLYVANE_SKIP(std::strerror(errno)); // mostly: this user may not
        }
        m_silentResolver.bind(QHostAddress(QStringLiteral("127.0.0.53")), 53);
        // What comes once its queue is full, it does not answer.
        m_fullServer.setListenBacklogSize(0);
        m_fullServer.listen(QHostAddress(QStringLiteral("127.0.2.1")), 443);
        m_fullServer.pauseAccepting();
        m_filling.connectToHost(m_fullServer.serverAddress(), 443);
        QVERIFY(m_filling.waitForConnected());
        tests::PrivateNetwork::replace("/etc/resolv.conf",
                                       "nameserver 127.0.0.53\noptions timeout:30 attempts:5\n");
        tests::PrivateNetwork::trust(m_identity.certificate, "service");
    }

    void tellsWhatIsWrong_data() {
        QTest::addColumn<std::size_t>("run");
        QTest::addColumn<QByteArray>("expected");
        for (const Fault& fault : faults()) {
            QTest::newRow(fault.name)
                << m_runs.size()
                << (fault.expected == nullptr ? QByteArray()
                                              : "tallyvane: " + QByteArray(fault.expected));
            m_runs.push_back(makeRun(fault));
        }
        // All at once, since some take their time.
        for (const auto& run : m_runs) {
            run->start("exec unshare --mount sh -c 'mount --bind \"$HOME/hosts\" /etc/hosts && "
                       "exec \"$0\" refresh' \"$0\"");
        }
    }
    void tellsWhatIsWrong() {
        QFETCH(const std::size_t, run);
        QFETCH(const QByteArray, expected);
        const tests::RunningProgram& program = m_runs[run]->program;
        QVERIFY(program.hasEnded());
        const QByteArray errors = tests::readFile(m_runs[run]->home + QStringLiteral("/errors"));
        QVERIFY2(errors.startsWith(expected), errors);
        QCOMPARE(errors.count('\n'), expected.isEmpty() ? 0 : 1);
        QCOMPARE(program.exitCode(), expected.isEmpty() ? 0 : 3);
    }

    void leavesNoProcess() {
        TALLYVANE_TRY_COMPARE(tests::processesIn(QDir::homePath().toUtf8()).size(), 0);
    }

    /// Two programs at once in each home, and their ends at any time.
    void survivesKillsAtAnyInstant() {
        ScriptedReply reply = httpReply(200, usage);
        reply.ending = ScriptedReply::Ending::alwaysCloses;
        std::array<Run*, 2> runs{};
        QList<tests::RunningProgram*> programs;
        for (Run*& run : runs) {
            m_runs.push_back(makeRun({.replies = {reply}, .codex = "replies"}));
            run = m_runs.back().get();
            run->installRisingCodex();
            programs << &run->program << &run->other;
        }
        tests::PrivateNetwork::replace("/etc/hosts",
                                       tests::readFile(runs[0]->home + QStringLiteral("/hosts")));
        const auto startAll = [&runs] {
            for (Run* run : runs) {
                run->start("exec \"$0\" refresh");
                run->start("exec \"$0\" refresh", run->other);
            }
        };
        const auto haveEnded = [&programs] {
            return std::ranges::all_of(programs, &tests::RunningProgram::hasEnded);
        };
        const auto refreshAll = [&] {
            startAll();
            return haveEnded() && std::ranges::all_of(programs, [](const QProcess* program) {
                       return program->exitCode() == 0;
                   });
        };
        QElapsedTimer timer;
        timer.start();
        QVERIFY(refreshAll());
        const auto length = static_cast<int>(timer.elapsed());

        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        int kills = 0;
        while (kills < FAULT_ROUNDS) {
            const QObject scope; // no kill outlives its round
            startAll();
            for (QProcess* program : programs) {
                QTimer::singleShot(random.bounded(length), &scope, [program] { program->kill(); });
            }
            QVERIFY(haveEnded());
            for (const Run* run : runs) {
                QVERIFY2(
                    tests::areFilesWhole(run->home + QStringLiteral("/data")) &&
                        model::DefaultsStore::open(
                            (run->home + QStringLiteral("/config/group.corvelle.Gaugewell.conf"))
                                .toStdString()),
                    qPrintable(QString::number(seed)));
            }
            kills += static_cast<int>(
                std::ranges::count(programs, QProcess::CrashExit, &QProcess::exitStatus));
        }
        qInfo() << kills << "kills within" << length << "ms, seed" << seed;
        QVERIFY(refreshAll());
        for (const Run* run : runs) {
            QVERIFY(run->countsNothingTwice());
        }
        leavesNoProcess();
    }

    /// Sometimes there is room for one of the program's files and not for another.
    void countsOnceOnANearlyFullDisk() {
        m_runs.push_back(makeRun({}));
        Run& run = *m_runs.back();
        run.installRisingCodex();
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo() << "seed" << seed;
        QRandomGenerator random(seed);
        const QStringList places{run.home + QStringLiteral("/data"),
                                 run.home + QStringLiteral("/config")};
        for (const QString& place : places) {
            QVERIFY(QDir().mkpath(place));
            QCOMPARE(::mount("none", QFile::encodeName(place).constData(), "tmpfs", 0, "size=64k"),
                     0);
        }
        const auto leaveRoom = [](const QString& place, qsizetype pages) {
            constexpr qsizetype pageSize = 4096;
            QFile filler(place + QStringLiteral("/filler"));
            filler.open(QIODevice::ReadWrite | QIODevice::Unbuffered | QIODevice::Append);
            while (filler.write(QByteArray(pageSize, 'x')) == pageSize) {
            }
            filler.resize(std::max<qint64>(filler.size() - pages * pageSize, 0));
        };
        int failures = 0;
        for (int round = 0; round < FAULT_ROUNDS / 5; ++round) {
            for (const QString& place : places) {
                leaveRoom(place, random.bounded(7));
            }
            run.start("exec \"$0\" refresh");
            QVERIFY(run.program.hasEnded());
            failures += run.program.exitCode() == 1 ? 1 : 0;
        }
        QVERIFY(failures > 0 && run.countsNothingTwice());
        for (const QString& place : places) {
            ::umount(QFile::encodeName(place).constData());
        }
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
