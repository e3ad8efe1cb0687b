#include "fault/secret_watch.h"
#include "fault/stored_files.h"
#include "history/calendar_days.h"
#include "platform/linux/status_item/dbus_menu_records.h"
#include "support/gnome_keyring.h"
#include "support/private_network.h"
#include "support/tallyvane_program.h"
#include "support/tls_server.h"
#include "support/xfce_desktop.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTimeZone>
#include <QtCore/QXmlStreamReader>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingReply>
#include <QtNetwork/QUdpSocket>

#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/timerfd.h>

using namespace tallyvane;
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

/// An argument of this D-Bus type, among them what an object has not, and what is out of range;
/// nothing that makes the program end, nor a message that the bus refuses for its size. Invalid for
/// a type that no method had so far.
QVariant randomArgument(const QString& type, QRandomGenerator& random) {
    const auto oneOf = [&random](const auto& values) {
        return values.at(random.bounded(std::ssize(values)));
    };
    const int id = oneOf(QList{INT_MIN, -1, 0, 3, 4, 5, 6, 99, INT_MAX}); // 7 is Quit
    const QString text = oneOf(QStringList{{},
                                           QStringLiteral("refresh"),
                                           QStringLiteral("clicked"),
                                           QStringLiteral("label"),
                                           QStringLiteral("IconPixmap"),
                                           QString(100'000, u'x'),
                                           QStringLiteral("\u202e%1\n")});
    const QVariantMap map{{text, id}, {QStringLiteral("activation-token"), text}};
    const QHash<QString, QVariant> values{
        {QStringLiteral("i"), id},
        {QStringLiteral("u"), static_cast<uint>(id)},
        {QStringLiteral("s"), text},
        {QStringLiteral("v"), QVariant::fromValue(QDBusVariant(map))},
        {QStringLiteral("as"), QStringList{text, text}},
        {QStringLiteral("ai"), QVariant::fromValue(QList<int>(random.bounded(1000), id))},
        {QStringLiteral("av"), QVariantList{id, text, map}},
        {QStringLiteral("a{sv}"), map},
        {QStringLiteral("a(isvu)"), QVariant::fromValue(QList<platform::DBusMenuEvent>(
                                        random.bounded(100), {id, text, QDBusVariant(text), 0}))}};
    return values.value(type);
}

/// A method of an object on the bus, with the types of its arguments.
struct Method {
    QString path;
    QString interface;
    QString name;
    QStringList arguments;
};

QList<Method> methodsIn(const QString& path, const QString& introspection) {
    QList<Method> methods;
    QString interface;
    for (QXmlStreamReader xml(introspection); !xml.atEnd(); xml.readNext()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        const QString name = attributes.value(QStringLiteral("name")).toString();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == u"interface") {
            interface = name;
        } else if (xml.name() == u"signal") {
            xml.skipCurrentElement();
        } else if (xml.name() == u"method") {
            methods.append({path, interface, name, {}});
        } else if (xml.name() == u"arg" &&
                   attributes.value(QStringLiteral("direction")) != u"out") {
            methods.last().arguments.append(attributes.value(QStringLiteral("type")).toString());
        }
    }
    return methods;
}

/// The program in the background of the desktop.
struct Program : tests::RunningProgram {
    Program() {
        setStandardOutputFile(inHome("printed"), QIODevice::Append);
        setProcessChannelMode(QProcess::MergedChannels);
        start(QStringLiteral(TALLYVANE_PROGRAM), {QStringLiteral("--background")});
    }

    [[nodiscard]] Process process() const { return {processId()}; }

    [[nodiscard]] QStringList descriptors() const {
        return QDir(QStringLiteral("/proc/%1/fd").arg(processId()))
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

    /// The descriptor of the timer, one that counts suspended time, by which it awaits the next
    /// refresh; -1 while it refreshes.
    [[nodiscard]] int nextRefresh() const {
        for (const QString& descriptor : descriptors()) {
            const QByteArray info = process().read(("fdinfo/" + descriptor.toLatin1()).data());
            const qsizetype value = info.indexOf("it_value: (") + 11;
            const int seconds = info.mid(value).split(',').first().toInt();
            if (info.contains("clockid: 7\n") && seconds > 20 && seconds <= 300) {
                return descriptor.toInt();
            }
        }
        return -1;
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
                          const QString& path = QStringLiteral("/org/corvelle/Tallyvane")) const {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.corvelle.Tallyvane"), path, interface, method);
        message.setArguments(arguments);
        return QDBusConnection(m_desktop->bus.address()).asyncCall(message, patience);
    }

    QDBusPendingCall refresh() const {
        return call(QStringLiteral("org.corvelle.Tallyvane.Control"), QStringLiteral("Refresh"));
    }

    static bool isTrue(const QDBusPendingReply<bool>& reply) {
        return QTest::qWaitFor([&reply] { return reply.isFinished(); }, patience) &&
               reply.isValid() && reply.value();
    }

public:
    DesktopFaultsTest() : HermeticTest(AfterFailure::stop) {}

private Q_SLOTS:
    void initTestCase() {
        if (!m_network.isUsable()) {
            TALLYVANE_SKIP(std::strerror(errno)); // mostly: this user may not
        }
        const auto identity = tests::makeTlsIdentity(QStringLiteral("DNS:api.anthropic.com"));
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
        TALLYVANE_TRY_VERIFY(tests::GnomeKeyring::store(QStringLiteral("service"),
                                                        R"({"claudeAiOauth":{"accessToken":")" +
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

    void joinsWhoAsksMeanwhile() {
        installCodex("while [ ! -e \"$HOME/go\" ]; do sleep 0.01; done");
        const Program program;
        TALLYVANE_TRY_COMPARE(asked(), 1);
        QList<QDBusPendingCall> calls;
        for (int i = 0; i < 50; ++i) {
            calls.append(refresh());
        }
        const auto last =
            call(QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"),
                 {QStringLiteral("none"), QVariantList(), QVariantMap()});
        TALLYVANE_TRY_VERIFY(last.isFinished());
        tests::writeFile(inHome("go"), {});
        for (const QDBusPendingCall& one : calls) {
            QVERIFY(isTrue(one));
        }
        QCOMPARE(asked(), 1);
        // Nothing that holds the token may end up in a file, nor with a program that collects
        // cores.
        QVERIFY(program.process().read("limits").contains("Max core file size        1 "));
    }

    void answersEveryCall() {
        const Program program;
        TALLYVANE_TRY_VERIFY(program.nextRefresh() >= 0);
        platform::registerDBusMenuRecords();
        QList<Method> methods;
        for (const char* name : {"/org/corvelle/Tallyvane", "/StatusNotifierItem", "/MenuBar"}) {
            const QString path = QString::fromLatin1(name);
            const QDBusPendingReply<QString> introspection =
                call(QStringLiteral("org.freedesktop.DBus.Introspectable"),
                     QStringLiteral("Introspect"), {}, path);
            TALLYVANE_TRY_VERIFY(introspection.isFinished());
            const QList<Method> found = methodsIn(path, introspection.value());
            QVERIFY(!found.isEmpty());
            methods += found;
        }
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo() << methods.size() << "methods, seed" << seed;
        QRandomGenerator random(seed);
        QList<QDBusPendingCall> calls;
        for (int round = 0; round < 20; ++round) {
            for (const Method& method : methods) {
                QVariantList arguments;
                for (const QString& type : method.arguments) {
                    arguments.append(randomArgument(type, random));
                    QVERIFY2(arguments.last().isValid(), qPrintable(type));
                }
                calls.append(call(method.interface, method.name, arguments, method.path));
            }
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

    /// What the machine's clock does to the timer when the machine wakes up, the test does to it.
    void refreshesOnceAfterALongSleep() {
        const Program program;
        TALLYVANE_TRY_VERIFY(program.nextRefresh() >= 0);
        QCOMPARE(asked(), 1);
        const auto process = static_cast<int>(::syscall(SYS_pidfd_open, program.processId(), 0));
        const auto timer =
            static_cast<int>(::syscall(SYS_pidfd_getfd, process, program.nextRefresh(), 0));
        if (timer < 0) {
            TALLYVANE_SKIP(std::strerror(errno));
        }
        itimerspec past{};
        past.it_value.tv_nsec = 1;
        QCOMPARE(::timerfd_settime(timer, TFD_TIMER_ABSTIME, &past, nullptr), 0);
        ::close(timer);
        ::close(process);
        TALLYVANE_TRY_COMPARE(asked(), 2);
        TALLYVANE_TRY_VERIFY(program.nextRefresh() >= 0);
        QCOMPARE(asked(), 2);
    }

    /// What it stored is then of the future.
    void forgivesAClockSetBack() {
        const std::pair<const char*, QByteArray> fakeClock[] = {
            {"LD_PRELOAD", "/usr/$LIB/faketime/libfaketimeMT.so.1"},
            {"FAKETIME_TIMESTAMP_FILE", inHome("clock").toUtf8()},
            {"FAKETIME_NO_CACHE", "1"},
            {"FAKETIME_DONT_FAKE_MONOTONIC", "1"},
            {"FAKETIME_DISABLE_SHM", "1"}};
        QFile::remove(historyFile());
        tests::writeFile(inHome("clock"), "+2d");
        for (const auto& [name, value] : fakeClock) {
            qputenv(name, value);
        }
        const bool isUsable = tests::output(TALLYVANE_PROGRAM " --version") != "";
        const Program program;
        for (const auto& [name, value] : fakeClock) {
            qunsetenv(name);
        }
        if (!isUsable) {
            QVERIFY(IS_SANITIZED);
            QSKIP("libfaketime and the address sanitizer exclude each other");
        }
        TALLYVANE_TRY_VERIFY(program.nextRefresh() >= 0);
        const QByteArray status = tests::output(TALLYVANE_PROGRAM " status");
        QVERIFY2(status.count("synced just now") == 2 && !status.contains("-1"), status);
        tests::writeFile(inHome("clock"), "+0");
        QVERIFY(isTrue(refresh()));
        const auto points = history::decodeHistory(tests::readFile(historyFile()))->points;
        QCOMPARE(points.size(), std::size_t{4});
        QVERIFY(points[2].date < points[0].date);
        const QByteArray json = tests::readFile(inHome("data/Gaugewell/quota-snapshot.json"));
        QVERIFY(model::decodeSnapshot(json)->updatedAt < points[0].date);
    }

    void followsTheTimeZone() {
        const Program program;
        TALLYVANE_TRY_VERIFY(program.nextRefresh() >= 0);
        // It is never midnight in two of them at once.
        for (const QByteArray zone : {"Pacific/Kiritimati", "America/St_Johns", "Etc/UTC"}) {
            QFile::remove(QStringLiteral("/etc/localtime"));
            QVERIFY(QFile::link(QStringLiteral("/usr/share/zoneinfo/") + QString::fromUtf8(zone),
                                QStringLiteral("/etc/localtime")));
            QFile::remove(historyFile());
            QVERIFY(isTrue(refresh()));
            const auto stored = history::decodeHistory(tests::readFile(historyFile()));
            QVERIFY(stored && !stored->points.empty());
            const model::LocalZone inZone{QTimeZone(zone)};
            const auto day = history::localDay(stored->points[0].date, inZone);
            QCOMPARE(stored->points[0].date, history::startOfDay(day, inZone));
        }
    }

    void endsAtAnyMoment_data() {
        QTest::addColumn<QByteArray>("by");
        QTest::addColumn<bool>("isRefreshing");
        for (const bool isRefreshing : {false, true}) {
            for (const char* by : {"bus", "display", "INT", "TERM", "KILL"}) {
                QTest::addRow("%s%s", by, isRefreshing ? " while it refreshes" : "")
                    << QByteArray(by) << isRefreshing;
            }
        }
    }
    void endsAtAnyMoment() {
        QFETCH(const QByteArray, by);
        QFETCH(const bool, isRefreshing);
        const QByteArray display = qgetenv("DISPLAY");
        auto bus = std::make_unique<tests::PrivateBus>();
        auto screen = std::make_unique<tests::VirtualDisplay>();
        if (isRefreshing) {
            installCodex("trap '' TERM\nsleep 1000");
        }
        Program program;
        TALLYVANE_TRY_COMPARE(asked(), 1);
        TALLYVANE_TRY_VERIFY(isRefreshing || program.nextRefresh() >= 0);
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
        QVERIFY(program.hasEnded());
        QVERIFY(tests::areFilesWhole(inHome("data")));
        if (by == "KILL") {
            QCOMPARE(program.exitStatus(), QProcess::CrashExit);
        } else {
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QVERIFY(by == "display" || program.exitCode() == 0); // Qt chooses that one itself
        }
        screen.reset();
        qputenv("DISPLAY", display);
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_desktop->bus.address().toUtf8());
    }

    void endsDuringALookUp() {
        m_silentResolver.bind(QHostAddress(QStringLiteral("127.0.0.53")), 53);
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
        const int rounds =
            qEnvironmentVariable("TALLYVANE_SOAK", QString::number(FAULT_ROUNDS / 2)).toInt();
        const int interval = rounds / 4;
        QVERIFY(interval > 0);
        const Program program;
        TALLYVANE_TRY_VERIFY(program.nextRefresh() >= 0);
        qint64 memory = 0;
        qint64 threads = 0;
        qsizetype descriptors = 0;
        for (int round = 1; round <= 4 * interval; ++round) {
            QVERIFY(isTrue(refresh()));
            if (round % interval != 0) {
                continue;
            }
            TALLYVANE_TRY_COMPARE(processes().size(), 1); // and no zombie
            const Process process = program.process();
            const qint64 nowResident = process.status("VmRSS");
            qInfo() << round << "refreshes:" << nowResident << "kB," << process.status("Threads")
                    << "threads," << program.descriptors().size() << "descriptors";
            if (round == interval) {
                memory = nowResident;
                threads = process.status("Threads");
                descriptors = program.descriptors().size();
            }
            // A thread of Qt's that looks names up, and its descriptor, come and go.
            QVERIFY(process.status("Threads") <= threads + 1);
            QVERIFY(program.descriptors().size() <= descriptors + 1);
            QVERIFY(IS_SANITIZED ||
                    nowResident - memory <= 2048); // a sanitizer keeps what is freed
        }
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
