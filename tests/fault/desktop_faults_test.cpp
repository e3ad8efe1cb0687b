#include "fault/secret_watch.h"
#include "history/calendar_days.h"
#include "history/usage_history.h"
#include "support/gnome_keyring.h"
#include "support/private_network.h"
#include "support/tallyvane_program.h"
#include "support/tls_server.h"
#include "support/xfce_desktop.h"

#include <QtCore/QTimeZone>
#include <QtNetwork/QUdpSocket>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using tests::inHome;
using tests::Process;

namespace {

const QByteArray token = "tallyvane-test-5ecret";
const QByteArray serviceHost = "127.0.0.1 api.anthropic.com\n";

QString historyFile() {
    return inHome("data/Gaugewell/usage-history.json");
}

/// The program and its children at this moment.
QList<Process> processes() {
    QList<Process> found = tests::processesIn(QDir::homePath().toUtf8());
    found.removeIf([](const Process& process) {
        const QByteArray command = process.read("cmdline");
        return !command.contains("/tallyvane") && !command.contains("/codex");
    });
    return found;
}

/// Lets the program refresh and tell whether it could store that.
bool refresh() {
    return tests::callOnBus(u"org.corvelle.Tallyvane"_s, "/org/corvelle/Tallyvane",
                            "org.corvelle.Tallyvane.Control.Refresh") == "(true,)";
}

/// The program in the background of the desktop. Its `codex` runs a script before it answers.
struct Program : tests::RunningProgram {
    explicit Program(const QByteArray& codexScript = {}) {
        tests::installCodex(42, codexScript);
        setStandardOutputFile(inHome("printed"), QIODevice::Append);
        setProcessChannelMode(QProcess::MergedChannels);
        start(QStringLiteral(TALLYVANE_PROGRAM), {u"--background"_s});
    }

    [[nodiscard]] Process process() const { return {processId()}; }

    [[nodiscard]] QStringList descriptors() const {
        return QDir(u"/proc/%1/fd"_s.arg(processId()))
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Whether it awaits the next refresh, by a timer that counts suspended time.
    [[nodiscard]] bool isIdle() const {
        const QStringList all = descriptors();
        return std::ranges::any_of(all, [this](const QString& descriptor) {
            const QByteArray info = process().read(("fdinfo/" + descriptor.toLatin1()).data());
            const qsizetype value = info.indexOf("it_value: (") + 11;
            const int seconds = info.mid(value).split(',').first().toInt();
            return info.contains("clockid: 7\n") && seconds > 20 && seconds <= 300;
        });
    }
};

} // namespace

/// The desktop program, with all that it works with at work, among faults of the machine.
class DesktopFaultsTest : public tests::HermeticTest {
    Q_OBJECT

    tests::PrivateNetwork m_network;
    QUdpSocket m_silentResolver;
    std::optional<tests::TlsServer> m_server;
    std::optional<tests::XfceDesktop> m_desktop;
    std::optional<tests::GnomeKeyring> m_keyring;
    std::optional<tests::RunningProgram> m_busMonitor;
    const tests::SecretWatch m_watch{token};

public:
    DesktopFaultsTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() {
        if (!m_network.isUsable()) {
            TALLYVANE_SKIP(std::strerror(errno)); // mostly: this user may not
        }
        const auto identity = tests::makeTlsIdentity(u"DNS:api.anthropic.com"_s);
        tests::PrivateNetwork::trust(identity.certificate, "service");
        tests::PrivateNetwork::replace("/etc/hosts", serviceHost);
        auto reply = tests::httpReply(200, R"({"five_hour":{"utilization":37.5}})");
        reply.ending = tests::ScriptedReply::Ending::alwaysCloses;
        m_server.emplace(identity, QList{reply}, QHostAddress::LocalHost, 443);
        qunsetenv("TZ");
        m_desktop.emplace();
        m_busMonitor.emplace("dbus-monitor >\"$HOME/bus-traffic\"");
        m_keyring.emplace();
        TALLYVANE_TRY_VERIFY(
            tests::GnomeKeyring::store(u"service"_s, R"({"claudeAiOauth":{"accessToken":")" +
                                                         token + R"(","expiresAt":4e12}})"));
        m_desktop->startPanel();
    }

    void cleanup() {
        TALLYVANE_TRY_COMPARE(processes().size(), 0);
        HermeticTest::cleanup();
    }

    void followsTheTimeZone() {
        const Program program;
        TALLYVANE_TRY_VERIFY(program.isIdle());
        // It is never midnight in two of them at once.
        for (const QByteArray zone : {"Pacific/Kiritimati", "America/St_Johns", "Etc/UTC"}) {
            QFile::remove(u"/etc/localtime"_s);
            QVERIFY(QFile::link(u"/usr/share/zoneinfo/"_s + QLatin1StringView(zone),
                                u"/etc/localtime"_s));
            QFile::remove(historyFile());
            QVERIFY(refresh());
            const auto stored = history::decodeHistory(tests::readFile(historyFile()));
            QVERIFY(stored && !stored->points.empty());
            const model::LocalZone inZone{QTimeZone(zone)};
            const auto day = history::localDay(stored->points[0].date, inZone);
            QCOMPARE(stored->points[0].date, history::startOfDay(day, inZone));
        }
    }

    void endsAtAnyMoment() {
        const QByteArray display = qgetenv("DISPLAY");
        for (const QByteArray by : {"bus", "display", "TERM", "KILL"}) {
            for (const bool isRefreshing : {false, true}) {
                std::optional<tests::PrivateBus> bus(std::in_place);
                std::optional<tests::VirtualDisplay> screen(std::in_place);
                Program program(isRefreshing ? "sleep 1000" : "");
                TALLYVANE_TRY_VERIFY(isRefreshing ? processes().size() > 1 : program.isIdle());
                // Qt, before its event loop runs, asks the bus for assistive programs, and were the
                // bus to end right then, would await the answer for ever.
                TALLYVANE_TRY_VERIFY(
                    tests::output("gdbus introspect --session --dest org.corvelle.Tallyvane "
                                  "--object-path /org/corvelle/Tallyvane")
                        .contains("Refresh"));
                if (by == "bus") {
                    bus.reset();
                } else if (by == "display") {
                    screen.reset();
                } else {
                    tests::output("kill -" + by + ' ' + QByteArray::number(program.processId()));
                }
                QVERIFY2(program.hasEnded(), by);
                const bool isKilled = program.exitStatus() == QProcess::CrashExit;
                QVERIFY2(isKilled == (by == "KILL"), by);
                // Qt chooses the exit code for a lost display.
                QVERIFY2(isKilled || by == "display" || program.exitCode() == 0, by);
                TALLYVANE_TRY_COMPARE(processes().size(), 0);
            }
        }
        qputenv("DISPLAY", display);
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_desktop->bus.address().toUtf8());
    }

    void endsDuringALookUp() {
        m_silentResolver.bind(QHostAddress(u"127.0.0.53"_s), 53);
        tests::PrivateNetwork::replace("/etc/resolv.conf",
                                       "nameserver 127.0.0.53\noptions timeout:30 attempts:5\n");
        tests::PrivateNetwork::replace("/etc/hosts", {});
        Program program;
        TALLYVANE_TRY_VERIFY(m_silentResolver.hasPendingDatagrams());
        tests::PrivateNetwork::replace("/etc/hosts", serviceHost);
        program.terminate();
        QVERIFY(program.hasEnded());
        QCOMPARE(program.exitCode(), 0);
    }

    /// TALLYVANE_SOAK is the number of refreshes.
    void staysTheSame() {
        const int soak = qEnvironmentVariableIntValue("TALLYVANE_SOAK");
        const int rounds = soak > 0 ? soak : FAULT_ROUNDS;
        const Program program;
        TALLYVANE_TRY_VERIFY(program.isIdle());
        // Nothing that holds the token may end up in a file, nor with a program that collects
        // cores.
        QVERIFY(program.process().read("limits").contains("Max core file size        1 "));
        std::array<qint64, 3> before{};
        std::array<qint64, 3> after{};
        for (int round = 1; round <= rounds; ++round) {
            QVERIFY(refresh());
            if (round == rounds / 4 || round == rounds) {
                TALLYVANE_TRY_COMPARE(processes().size(), 1); // and no zombie
                before = after;
                after = {program.process().status("VmRSS"), program.process().status("Threads"),
                         program.descriptors().size()};
                qInfo() << round << "refreshes: kB, threads, descriptors:"
                        << QList(after.begin(), after.end());
            }
        }
        // A sanitizer keeps what is freed.
        QVERIFY(IS_SANITIZED || after[0] - before[0] <= 2048);
        // A thread of Qt's that looks names up, and its descriptor, come and go.
        QVERIFY(before[1] > 0 && after[1] <= before[1] + 1 && after[2] <= before[2] + 1);
    }

    void keepsTheTokenToItself() {
        QCOMPARE(m_watch.leaks(), "");
        QVERIFY(m_watch.hasSeen("/.local/bin/codex"));
        QVERIFY(tests::readFile(inHome("bus-traffic")).contains("org.freedesktop.Secret.Service"));
        QVERIFY(!m_server->requests().isEmpty());
        for (const QByteArrayList& request : m_server->requests()) {
            QCOMPARE(request.join().count(token), 1);
            QVERIFY(request.contains("Authorization: Bearer " + token));
        }
    }
};

TALLYVANE_TEST(DesktopFaultsTest)
#include "desktop_faults_test.moc"
