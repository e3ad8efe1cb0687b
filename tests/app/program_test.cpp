#include "model/shared_store.h"
#include "platform/linux/dbus_application.h"
#include "support/home_files.h"
#include "support/private_bus.h"
#include "support/test_main.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>
#include <QtTest/QSignalSpy>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace tallyvane;

namespace {

struct Run {
    int exitCode = -1;
    QString output;
    QString error;
};

} // namespace

/// Drives the installed program as a user does, in a home of its own for each test.
class ProgramTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        m_home = std::make_unique<QTemporaryDir>();
        m_program = QStringLiteral(TALLYVANE_PROGRAM);
    }

    void refusesWhatItDoesNotKnow() {
        const Run unknown = run({QStringLiteral("status"), QStringLiteral("--colour")});
        QCOMPARE(unknown.exitCode, 2);
        QCOMPARE(unknown.error, QStringLiteral("tallyvane: Unknown option 'colour'. "
                                               "Try 'tallyvane --help'.\n"));
    }

    void becomesTheDesktopProgram() {
        m_program = m_home->filePath(QStringLiteral("bin/tallyvane"));
        QVERIFY(QDir(m_home->path()).mkpath(QStringLiteral("bin")));
        QVERIFY(QFile::copy(QStringLiteral(TALLYVANE_PROGRAM), m_program));
        const Run absent = run({});
        QCOMPARE(absent.exitCode, 1);
        QVERIFY2(absent.error.contains(u"not installed"), qPrintable(absent.error));
        install("libexec/tallyvane/tallyvane-desktop", "echo libexec $*; exit 42");
        const Run installed = run({QStringLiteral("--background")});
        QCOMPARE(installed.output, QStringLiteral("libexec --background\n"));
        QCOMPARE(installed.exitCode, 42);
        install("bin/tallyvane-desktop", "echo beside $*");
        QCOMPARE(run({}).output, QStringLiteral("beside\n"));
        QVERIFY(QFile(m_home->filePath(QStringLiteral("bin/tallyvane-desktop")))
                    .setPermissions(QFile::ReadOwner));
        QVERIFY(run({}).error.contains(u"Permission denied"));
    }

    void goesThroughTheRunningProgram() {
        const tests::PrivateBus bus;
        const model::StoreLocations locations{
            .dataHome = m_home->filePath(QStringLiteral("data")).toStdString(),
            .configHome = m_home->filePath(QStringLiteral("config")).toStdString()};
        const model::SharedStore store(locations);
        const auto now =
            std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
        model::QuotaSnapshot snapshot = model::placeholderSnapshot(now);
        for (model::ProviderQuotaSnapshot& entry : snapshot.providers) {
            entry.syncState = model::QuotaSyncState::current;
            entry.syncedAt = now;
        }
        std::function<QCoro::Task<bool>()> refresh = [&] {
            return stored(store.saveSnapshot(snapshot).has_value());
        };
        platform::DBusApplication desktop([&refresh] { return refresh(); });
        const QSignalSpy activated(&desktop, &platform::DBusApplication::activated);
        QCOMPARE(desktop.registerOnBus(), platform::DBusApplication::Registration::owner);

        const Run current = run({QStringLiteral("refresh")});
        QCOMPARE(current.exitCode, 0);
        QVERIFY2(current.output.contains(u"Claude, synced just now"), qPrintable(current.output));
        QCOMPARE(current.error, QString());

        snapshot.providers[0].syncState = model::QuotaSyncState::pending;
        snapshot.providers[1].syncState = model::QuotaSyncState::pending;
        snapshot.providers[1].statusMessage = QStringLiteral("Rate limited");
        const Run pending = run({QStringLiteral("refresh")});
        QCOMPARE(pending.exitCode, 3);
        QVERIFY2(pending.error.startsWith(u"tallyvane: Codex: Not refreshed") &&
                     pending.error.endsWith(u"\ntallyvane: Claude: Rate limited\n"),
                 qPrintable(pending.error));

        refresh = [] { return stored(false); };
        QCOMPARE(run({QStringLiteral("refresh")}).exitCode, 1);

        QCOMPARE(run({QStringLiteral("--background")}).exitCode, 0);
        QCOMPARE(activated.count(), 0);
        qputenv("XDG_ACTIVATION_TOKEN", "token");
        QCOMPARE(run({}).exitCode, 0);
        qunsetenv("XDG_ACTIVATION_TOKEN");
        QCOMPARE(activated.value(0), QVariantList{QStringLiteral("token")});
    }

    /// Each run ends right after it has told them.
    void tellsTheWidgets() {
        const tests::PrivateBus bus;
        QDBusConnection widget = QDBusConnection::connectToBus(bus.address(), bus.address());
        m_signals = 0;
        QVERIFY(widget.connect(QString(), QStringLiteral("/org/corvelle/Tallyvane"),
                               QStringLiteral("org.corvelle.Tallyvane.Widgets"),
                               QStringLiteral("AllTimelinesReloaded"), this, SLOT(countSignal())));
        constexpr int rounds = 60;
        for (int round = 0; round < rounds; ++round) {
            QCOMPARE(run({QStringLiteral("refresh")}).exitCode, 3);
        }
        QTRY_COMPARE(m_signals, rounds);
    }

    void refreshesDespiteASilentBus() {
        const QTemporaryDir directory;
        const QByteArray path = directory.filePath(QStringLiteral("bus")).toUtf8();
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        std::ranges::copy(path, address.sun_path);
        const int bus = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(::bind(bus, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        QCOMPARE(::listen(bus, 10), 0);
        const QByteArray before = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
        const Run refresh = run({QStringLiteral("refresh")});
        qputenv("DBUS_SESSION_BUS_ADDRESS", before);
        ::close(bus);
        QCOMPARE(refresh.exitCode, 3);
    }

    void refreshesWhenTheRunningProgramCrashes() {
        const tests::PrivateBus bus;
        QProcess desktop;
        desktop.start(QStringLiteral(CRASHING_PROGRAM), QStringList());
        QVERIFY(desktop.waitForReadyRead());
        const Run own = run({QStringLiteral("refresh")});
        QCOMPARE(own.exitCode, 3);
        QVERIFY2(own.error.contains(u"Could not find Codex CLI."), qPrintable(own.error));
        QTRY_COMPARE(desktop.state(), QProcess::NotRunning);
    }

    void helps() {
        const Run help = run({QStringLiteral("--help")});
        QCOMPARE(help.exitCode, 0);
        for (const auto word : {"refresh", "status", "tokens", "--json", "--waybar", "Examples:"}) {
            QVERIFY(help.output.contains(QLatin1StringView(word)));
        }
        QVERIFY(run({QStringLiteral("--version")}).output.startsWith(u"tallyvane "));
    }

    void tellsThatNothingIsStored() {
        const Run status = run({QStringLiteral("status")});
        QCOMPARE(status.exitCode, 4);
        QVERIFY(status.output.isEmpty() && status.error.contains(u"refresh"));
        const Run waybar = run({QStringLiteral("status"), QStringLiteral("--waybar")});
        QCOMPARE(waybar.exitCode, 4);
        QVERIFY(waybar.output.contains(u"\"class\":\"none\""));
    }

    void refreshesAndReports() {
        installCodex(R"(printf '%s\n' '{"id":0,"result":{}}' '{"method":"noise"}')"
                     R"( '{"id":1,"result":{"rateLimits":{"planType":"team_pro","primary":)"
                     R"({"usedPercent":42,"windowDurationMins":300,"resetsAt":4102444800},)"
                     R"("secondary":null}}}'; cat)");
        const Run refresh = run({QStringLiteral("refresh")});
        QCOMPARE(refresh.exitCode, 3);
        QVERIFY2(refresh.output.startsWith(u"Codex (Team Pro), synced just now\n"
                                           "  5 hours   58% left  "),
                 qPrintable(refresh.output));
        QVERIFY2(refresh.output.contains(u"Claude, never synced\n") &&
                     refresh.error.startsWith(u"tallyvane: Claude: "),
                 qPrintable(refresh.error));
        QCOMPARE(refresh.error.count(u'\n'), 1);

        const QString output = run({QStringLiteral("status")}).output;
        QCOMPARE(output, refresh.output);
        const QByteArray stored =
            tests::readFile(m_home->filePath(QStringLiteral("data/Gaugewell/quota-snapshot.json")));
        const auto snapshot = tallyvane::model::decodeSnapshot(stored);
        QVERIFY(snapshot);
        QCOMPARE(snapshot->providers[1].statusMessage, QStringLiteral("Keychain auth"));
        QCOMPARE(run({QStringLiteral("status"), QStringLiteral("--json")}).output.toUtf8(),
                 stored + '\n');
        QVERIFY(run({QStringLiteral("status"), QStringLiteral("--waybar")})
                    .output.contains(u"\"text\":\"58%\""));
    }

    /// It may be about to store a new sign-in of its own, and the user does not wait for that.
    void letsCodexEndInItsOwnTime() {
        installCodex(R"(trap 'until [ -e "$HOME/go" ]; do sleep 0.01; done; : >"$HOME/ended"' TERM)"
                     R"(; echo '{"id":1,"result":{"rateLimits":{}}}'; sleep 1000 & wait)");
        QCOMPARE(run({QStringLiteral("refresh")}).exitCode, 3);
        QVERIFY(!QFile::exists(m_home->filePath(QStringLiteral("ended"))));
        tests::writeFile(m_home->filePath(QStringLiteral("go")), {});
        QTRY_VERIFY(QFile::exists(m_home->filePath(QStringLiteral("ended"))));
    }

    void keepsOldFiguresWhenCodexFails() {
        installCodex(
            R"(echo '{"id":1,"result":{"rateLimits":{"primary":{"usedPercent":42}}}}'; cat)");
        QCOMPARE(run({QStringLiteral("refresh")}).exitCode, 3);
        installCodex(R"(echo '{"error":{"message":"me@example.com: not signed in"},"id":1}'; cat)");
        const Run failed = run({QStringLiteral("refresh")});
        QCOMPARE(failed.exitCode, 3);
        QVERIFY2(
            failed.error.contains(u"Codex: Command failed (-1): (e-mail address): not signed in\n"),
            qPrintable(failed.error));
        QVERIFY2(failed.output.contains(u"58% left  Sync pending\n"), qPrintable(failed.output));
        QVERIFY(!run({QStringLiteral("status"), QStringLiteral("--json")})
                     .output.contains(u"not signed in"));
    }

    void countsTokens() {
        const QByteArray log = R"({"type":"assistant","message":{"usage":{"output_tokens":42}}})";
        tests::writeFile(m_home->filePath(QStringLiteral(".claude/projects/-w/a.jsonl")), log);
        const Run text = run({QStringLiteral("tokens")});
        QCOMPARE(text.exitCode, 0);
        QVERIFY2(text.output.startsWith(u"Codex: 0 tokens\nClaude: 42 tokens\n1 files counted, "),
                 qPrintable(text.output));
        const QJsonObject json =
            QJsonDocument::fromJson(
                run({QStringLiteral("tokens"), QStringLiteral("--json")}).output.toUtf8())
                .object();
        const QJsonObject totals{{QStringLiteral("codex"), 0}, {QStringLiteral("claude"), 42}};
        QCOMPARE(json[u"totals"].toObject(), totals);
        QCOMPARE(json[u"readBytes"].toInteger(), log.size());
    }

    void recordsNewTokens() {
        const auto log = [this](int total) {
            QVERIFY(QDir(m_home->path()).mkpath(QStringLiteral(".codex/sessions/2026")));
            QFile file(m_home->filePath(QStringLiteral(".codex/sessions/2026/a.jsonl")));
            QVERIFY(file.open(QIODevice::Append));
            file.write(R"({"payload":{"type":"token_count","info":{"total_token_usage":)"
                       R"({"total_tokens":)" +
                       QByteArray::number(total) + "}}}}\n");
        };
        QCOMPARE(run({QStringLiteral("history")}).exitCode, 4);
        for (const int total : {1000, 1250}) {
            log(total);
            QCOMPARE(run({QStringLiteral("refresh")}).exitCode, 3);
        }
        const Run history = run({QStringLiteral("history"), QStringLiteral("--json")});
        QVERIFY2(history.output.contains(u"\"estimatedLocalTokens\" : 250,"),
                 qPrintable(history.output));
        QCOMPARE(run({QStringLiteral("history")}).output.count(u'\n'), 3);
    }

    /// Wherever the variables of the environment point, it is no place relative to this one.
    void storesInAbsolutePlaces() {
        const QString current = m_home->filePath(QStringLiteral("current"));
        QVERIFY(QDir().mkdir(current));
        QProcess program;
        program.setWorkingDirectory(current);
        const auto environment = QProcessEnvironment::systemEnvironment();
        const auto storesIn = [&](const QString& home, const QString& data, const QString& file) {
            QProcessEnvironment changed = environment;
            changed.insert(QStringLiteral("HOME"), home);
            changed.insert(QStringLiteral("XDG_DATA_HOME"), data);
            changed.insert(QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("config"));
            program.setProcessEnvironment(changed);
            program.start(m_program, {QStringLiteral("refresh")});
            return program.waitForFinished() && QDir(current).isEmpty() && QFile::remove(file);
        };
        const QString snapshot = QStringLiteral("/Gaugewell/quota-snapshot.json");
        const QString shared = m_home->path() + QStringLiteral("/.local/share") + snapshot;
        for (const char* data : {"", "data", "./data", "../data"}) {
            QVERIFY2(storesIn(m_home->path(), QString::fromLatin1(data), shared), data);
        }
        const QString own = m_home->filePath(QStringLiteral("own"));
        for (const char* home : {"", "home", "."}) {
            QVERIFY2(storesIn(QString::fromLatin1(home), own, own + snapshot), home);
        }
    }

    void tellsWhatItCouldNotStore() {
        QFile obstacle(m_home->filePath(QStringLiteral("data")));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        const Run refresh = run({QStringLiteral("refresh")});
        QCOMPARE(refresh.exitCode, 1);
        QVERIFY2(refresh.error.contains(u"quota-snapshot.json"), qPrintable(refresh.error));
    }

    void refusesToRunWithoutResources_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("limit"); // of the shell
        for (const char* command : {"refresh", "status", "tokens", "history", "--background"}) {
            for (const int files : {8, 12, 20, 34}) { // fewer do not load its libraries
                QTest::addRow("%s, %d files", command, files)
                    << QString::fromLatin1(command) << QStringLiteral("ulimit -n %1").arg(files);
            }
        }
        // The administrator's programs take no notice of it.
        const QString user = ::geteuid() == 0
                                 ? QStringLiteral("exec setpriv --reuid=65534 --regid=65534 "
                                                  "--clear-groups prlimit --nproc=%1")
                                 : QStringLiteral("ulimit -u %1");
        for (const int threads : {1, 4, 8}) {
            QTest::addRow("refresh, %d threads", threads)
                << QStringLiteral("refresh") << user.arg(threads);
        }
    }
    void refusesToRunWithoutResources() {
        QFETCH(const QString, command);
        QFETCH(const QString, limit);
        const bool needsMany = command == u"refresh" || command == u"--background";
        m_program = QStringLiteral("/bin/sh");
        const QString separator =
            limit.startsWith(u"exec") ? QStringLiteral(" ") : QStringLiteral("; exec ");
        const Run refused =
            run({QStringLiteral("-c"), limit + separator + QStringLiteral("\"$0\" ") + command,
                 QStringLiteral(TALLYVANE_PROGRAM)});
        QVERIFY2(refused.error.count(u'\n') <= 1, qPrintable(refused.error));
        const bool isTold = refused.exitCode == 1 && refused.error.contains(u"The system gives");
        QVERIFY2(isTold || (!needsMany && (refused.exitCode == 0 || refused.exitCode == 4)),
                 qPrintable(QString::number(refused.exitCode) + refused.error));
    }

    void reportsAFullDisk() {
        QProcess program;
        program.setStandardOutputFile(QStringLiteral("/dev/full"));
        program.start(QStringLiteral(TALLYVANE_PROGRAM), {QStringLiteral("--help")});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(program.readAllStandardError().contains("No space left"));
    }

    void loadsNoGui() {
        QProcess ldd;
        ldd.start(QStringLiteral("ldd"), {QStringLiteral(TALLYVANE_PROGRAM)});
        QVERIFY(ldd.waitForFinished());
        const QByteArray libraries = ldd.readAllStandardOutput();
        QVERIFY(libraries.contains("libQt6Core") && !libraries.contains("libQt6Gui"));
    }

public Q_SLOTS:
    void countSignal() { ++m_signals; }

private:
    static QCoro::Task<bool> stored(bool isStored) { co_return isStored; }

    /// Puts a shell script into the home.
    void install(const char* path, const char* script) const {
        tests::writeFile(m_home->filePath(QString::fromLatin1(path)),
                         QByteArray("#!/bin/sh\n") + script);
    }

    /// Where the program looks for the Codex CLI.
    void installCodex(const char* script) const { install(".local/bin/codex", script); }

    Run run(const QStringList& arguments) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home->path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"),
                           m_home->filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                           m_home->filePath(QStringLiteral("config")));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(m_program, arguments);
        const bool isFinished =
            QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, 30'000);
        return {.exitCode = isFinished ? program.exitCode() : -1,
                .output = QString::fromUtf8(program.readAllStandardOutput()),
                .error = QString::fromUtf8(program.readAllStandardError())};
    }

    int m_signals = 0;
    std::unique_ptr<QTemporaryDir> m_home;
    QString m_program;
};

TALLYVANE_TEST_MAIN(ProgramTest)
#include "program_test.moc"
