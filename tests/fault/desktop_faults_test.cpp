#include "fault/secret_watch.h"
#include "fault/stored_files.h"
#include "history/calendar_days.h"
#include "platform/linux/status_item/dbus_menu_records.h"
#include "support/gnome_keyring.h"
#include "support/private_network.h"
#include "support/tallyvane_program.h"
#include "support/tls_server.h"
#include "support/xfce_desktop.h"

#include <QtCore/QTimeZone>
#include <QtCore/QXmlStreamReader>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingReply>
#include <QtNetwork/QUdpSocket>

#include <sys/resource.h>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using tests::inHome;
using tests::patience;
using tests::Process;

namespace {

const QByteArray token = "tallyvane-test-5ecret";
const QByteArray serviceHost = "127.0.0.1 api.anthropic.com\n";

QString historyFile() {
    return inHome("data/Gaugewell/usage-history.json");
}

/// Lets `codex` count that it was asked, run a script of the shell, and answer.
void installCodex(const QByteArray& before = {}) {
    tests::installCodex(42, "echo >>\"$HOME/asked\"\n" + before);
}

qsizetype asked() {
    return tests::readFile(inHome("asked")).size();
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

/// An argument of this D-Bus type that is, or holds, the number and the text. Invalid for a type
/// that no method had so far.
QVariant argument(const QString& type, int id, const QString& text) {
    const QVariantMap map{{text, id}, {u"activation-token"_s, text}};
    const QList<platform::DBusMenuEvent> events(100, {id, text, QDBusVariant(text), 0});
    return QVariantMap{{u"i"_s, id},
                       {u"u"_s, static_cast<uint>(id)},
                       {u"s"_s, text},
                       {u"v"_s, QVariant::fromValue(QDBusVariant(map))},
                       {u"as"_s, QStringList{text, text}},
                       {u"ai"_s, QVariant::fromValue(QList<int>(1000, id))},
                       {u"av"_s, QVariantList{id, text, map}},
                       {u"a{sv}"_s, map},
                       {u"a(isvu)"_s, QVariant::fromValue(events)}}
        .value(type);
}

/// The program in the background of the desktop.
struct Program : tests::RunningProgram {
    Program() {
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
    const tests::SecretWatch m_watch{token, {}};

    QDBusPendingCall call(const QString& interface, const QString& method,
                          const QVariantList& arguments = {},
                          const QString& path = u"/org/corvelle/Tallyvane"_s) const {
        auto message =
            QDBusMessage::createMethodCall(u"org.corvelle.Tallyvane"_s, path, interface, method);
        message.setArguments(arguments);
        return QDBusConnection(m_desktop->bus.address()).asyncCall(message, patience);
    }

    QDBusPendingCall refresh() const {
        return call(u"org.corvelle.Tallyvane.Control"_s, u"Refresh"_s);
    }

    static bool isTrue(const QDBusPendingReply<bool>& reply) {
        return QTest::qWaitFor([&reply] { return reply.isFinished(); }, patience) &&
               reply.isValid() && reply.value();
    }

    void endAtAnyMoment(const QByteArray& by, bool isRefreshing) {
        const QByteArray display = qgetenv("DISPLAY");
        auto bus = std::make_unique<tests::PrivateBus>();
        auto screen = std::make_unique<tests::VirtualDisplay>();
        installCodex(isRefreshing ? "sleep 1000" : "");
        Program program;
        TALLYVANE_TRY_COMPARE(asked(), 1);
        TALLYVANE_TRY_VERIFY(isRefreshing || program.isIdle());
        // Qt, before its event loop runs, asks the bus for assistive programs, and were the bus to
        // end right then, would await the answer for ever.
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
        QVERIFY2(tests::areFilesWhole(inHome("data")), by);
        const bool isKilled = program.exitStatus() == QProcess::CrashExit;
        QVERIFY2(isKilled == (by == "KILL"), by);
        QVERIFY2(isKilled || by == "display" || program.exitCode() == 0, by); // Qt chooses that one
        screen.reset();
        qputenv("DISPLAY", display);
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_desktop->bus.address().toUtf8());
    }

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
        rlimit core{};
        ::getrlimit(RLIMIT_CORE, &core);
        core.rlim_cur = core.rlim_max;
        ::setrlimit(RLIMIT_CORE, &core);
        m_desktop.emplace();
        QDBusConnection::connectToBus(m_desktop->bus.address(), m_desktop->bus.address());
        m_busMonitor.emplace("dbus-monitor >\"$HOME/bus-traffic\"");
        m_keyring.emplace();
        TALLYVANE_TRY_VERIFY(
            tests::GnomeKeyring::store(u"service"_s, R"({"claudeAiOauth":{"accessToken":")" +
                                                         token + R"(","expiresAt":4e12}})"));
        m_desktop->startPanel();
    }

    void init() {
        HermeticTest::init();
        installCodex();
    }

    void cleanup() {
        TALLYVANE_TRY_COMPARE(processes().size(), 0);
        QFile::remove(inHome("asked"));
        HermeticTest::cleanup();
    }

    void answersEveryCall() {
        const Program program;
        TALLYVANE_TRY_VERIFY(program.isIdle());
        // Nothing that holds the token may end up in a file, nor with a program that collects
        // cores.
        QVERIFY(program.process().read("limits").contains("Max core file size        1 "));
        platform::registerDBusMenuRecords();
        // What an object has not, and what is out of range; nothing that makes the program end, nor
        // a message that the bus refuses for its size.
        const QList<std::pair<int, QString>> values{{INT_MIN, {}},
                                                    {-1, u"refresh"_s},
                                                    {0, u"clicked"_s},
                                                    {4, u"clicked"_s},
                                                    {5, u"clicked"_s},
                                                    {3, u"label"_s},
                                                    {6, u"IconPixmap"_s},
                                                    {99, QString(100'000, u'x')},
                                                    {INT_MAX, u"\u202e%1\n"_s}};
        QList<QDBusPendingCall> calls;
        for (const auto& path :
             {u"/org/corvelle/Tallyvane"_s, u"/StatusNotifierItem"_s, u"/MenuBar"_s}) {
            const qsizetype before = calls.size();
            const QDBusPendingReply<QString> introspection =
                call(u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s, {}, path);
            TALLYVANE_TRY_VERIFY(introspection.isFinished());
            QString interface;
            QString method;
            QStringList types;
            for (QXmlStreamReader xml(introspection.value()); !xml.atEnd(); xml.readNext()) {
                const auto attributes = xml.attributes();
                const QString name = attributes.value("name"_L1).toString();
                if (xml.isStartElement() && xml.name() == u"interface") {
                    interface = name;
                } else if (xml.isStartElement() && xml.name() == u"method") {
                    method = name;
                    types.clear();
                } else if (xml.isStartElement() && attributes.value("direction"_L1) == u"in") {
                    types.append(attributes.value("type"_L1).toString());
                }
                if (!xml.isEndElement() || xml.name() != u"method") {
                    continue;
                }
                for (const auto& [id, text] : values) {
                    QVariantList arguments;
                    for (const QString& type : types) {
                        arguments.append(argument(type, id, text));
                        QVERIFY2(arguments.last().isValid(), qPrintable(type));
                    }
                    calls.append(call(interface, method, arguments, path));
                }
            }
            QVERIFY(calls.size() > before);
        }
        const qsizetype others = calls.size();
        for (int i = 0; i < 4000; ++i) {
            calls.append(refresh());
        }
        for (qsizetype i = 0; i < calls.size(); ++i) {
            TALLYVANE_TRY_VERIFY(calls[i].isFinished());
            const QDBusError error = calls[i].error();
            QVERIFY2(error.type() != QDBusError::NoReply, qPrintable(error.message()));
            QVERIFY2(i < others || isTrue(calls[i]), qPrintable(error.message()));
        }
        QCOMPARE(program.state(), QProcess::Running);
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
            QVERIFY(isTrue(refresh()));
            const auto stored = history::decodeHistory(tests::readFile(historyFile()));
            QVERIFY(stored && !stored->points.empty());
            const model::LocalZone inZone{QTimeZone(zone)};
            const auto day = history::localDay(stored->points[0].date, inZone);
            QCOMPARE(stored->points[0].date, history::startOfDay(day, inZone));
        }
    }

    void endsAtAnyMoment() {
        for (const QByteArray by : {"bus", "display", "TERM", "KILL"}) {
            for (const bool isRefreshing : {false, true}) {
                cleanup();
                endAtAnyMoment(by, isRefreshing);
                if (QTest::currentTestFailed()) {
                    return;
                }
            }
        }
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
        std::array<qint64, 3> before{};
        std::array<qint64, 3> after{};
        for (int round = 1; round <= rounds; ++round) {
            QVERIFY(isTrue(refresh()));
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
        QCOMPARE(m_watch.findings({"tallyvane", "codex"}), QStringList());
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
