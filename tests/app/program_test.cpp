#include "app/refresh_result.h"
#include "platform/linux/dbus_application.h"
#include "support/command_run.h"
#include "support/private_bus.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QXmlStreamReader>
#include <QtDBus/QDBusConnection>
#include <QtNetwork/QLocalServer>
#include <QtTest/QSignalSpy>

using namespace tallyvane;
using namespace Qt::StringLiterals;
using tests::inHome;
using tests::install;
using tests::run;
using tests::runShell;

namespace {

using Run = tests::CommandRun;

const QString sharedLibrary =
    QFileInfo(QStringLiteral(TALLYVANE_PROGRAM)).dir().filePath(u"libtallyvane-program.so"_s);

/// Where the program looks for the Codex CLI.
void installCodex(const char* script) {
    install(".local/bin/codex", script);
}

/// The methods and signals of our interfaces, as docs/interfaces.md writes them.
QSet<QString> busMembers(const QByteArray& introspection) {
    QSet<QString> members;
    QXmlStreamReader xml(introspection);
    QString interface;
    while (!xml.atEnd()) {
        xml.readNextStartElement();
        const QString name = xml.attributes().value("name"_L1).toString();
        const bool isMember = xml.name() == "method"_L1 || xml.name() == "signal"_L1;
        if (xml.isStartElement() && xml.name() == "interface"_L1) {
            interface = name;
        } else if (xml.isStartElement() && isMember &&
                   !interface.startsWith("org.freedesktop.DBus."_L1)) {
            QStringList arguments;
            QString result;
            while (xml.readNextStartElement()) {
                const auto attributes = xml.attributes();
                const QString type = attributes.value("type"_L1).toString();
                if (xml.name() == "arg"_L1 && attributes.hasAttribute("name"_L1)) {
                    arguments.append(type + u' ' + attributes.value("name"_L1).toString());
                } else if (xml.name() == "arg"_L1) {
                    result = u" -> "_s + type;
                }
                xml.skipCurrentElement();
            }
            members.insert(interface + u' ' + name + u'(' + arguments.join(u", "_s) + u')' +
                           result);
        }
    }
    return members;
}

QSet<QString> documentedBusMembers() {
    static const QRegularExpression line(u"^### (org\\S+)$|^\\| `(\\w+\\(.*?)` \\|"_s,
                                         QRegularExpression::MultilineOption);
    QSet<QString> members;
    QString interface;
    auto found = line.globalMatch(
        QString::fromUtf8(tests::readFile(QStringLiteral(TALLYVANE_DOCUMENTS "/interfaces.md"))));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(1).isEmpty()) {
            members.insert(interface + u' ' + match.captured(2));
        } else {
            interface = match.captured(1);
        }
    }
    return members;
}

QCoro::Task<platform::DBusApplication::RefreshAnswer> refreshAnswer(app::RefreshResult result) {
    co_return platform::DBusApplication::RefreshAnswer{
        .report = QString::fromUtf8(encodeRefreshResult(result))};
}

} // namespace

/// Drives the installed program as a user does, with an empty home for each function.
class ProgramTest : public tests::HermeticTest {
    Q_OBJECT

    int m_signals = 0;

public:
    ProgramTest() : HermeticTest(AfterFailure::stop) {}

public Q_SLOTS:
    void countSignal() { ++m_signals; }

private Q_SLOTS:
    void cleanup() {
        tests::clearHome();
        HermeticTest::cleanup();
    }

    void answers() {
        // Parts of what it writes; empty: nothing.
        const auto check = [](const char* command, int exitCode, QByteArrayView output,
                              QByteArrayView error) {
            const Run answer = runShell(QString::fromUtf8(command));
            const auto contains = [](const QString& text, QByteArrayView part) {
                return part.isEmpty() ? text.isEmpty() : text.toUtf8().contains(part);
            };
            QVERIFY2(answer.exitCode == exitCode && contains(answer.output, output) &&
                         contains(answer.error, error),
                     qPrintable(answer.output + answer.error));
        };
        check("\"$0\" --help", 0, "Examples:\n  tallyvane refresh\n", "");
        check("\"$0\" help", 0, "Examples:\n  tallyvane refresh\n", "");
        for (const char* version : {"\"$0\" --version", "\"$0\" -V", "\"$0\" version"}) {
            check(version, 0, "tallyvane ", "");
        }
        check("\"$0\" --help >/dev/full", 1, "", "No space left");
        check("\"$0\" status --colour", 2, "",
              "tallyvane: Unknown option '--colour'. Try 'tallyvane --help'.\n");
        check("\"$0\" status", 4, "", "tallyvane refresh");
        check("\"$0\" status --waybar", 4, R"("class":"none")", "tallyvane refresh");
        check("\"$0\" status --format {lowest}", 4, "-\n", "tallyvane refresh");
        check("\"$0\" status --format {low}", 2, "", "field '{low}' in");
        check("exec \"$0\" \"`printf 'a\\033[1m\\302\\233\\342\\200\\256\\nb'`\"", 2, "",
              "command 'a b'.");
        check("\"$0\" history", 4, "", "No history");
        check("rm -r \"$HOME/data\"; echo >\"$HOME/data\"; \"$0\" refresh", 1, "",
              "quota-snapshot.json");
    }

    void coloursAsWished() {
        const std::pair<const char*, bool> rows[] = {
            {"TERM=xterm script -qec '%1 status' /dev/null", true},
            {"TERM=xterm NO_COLOR=1 script -qec '%1 status' /dev/null", false},
            {"TERM=dumb script -qec '%1 status' /dev/null", false},
            {"TERM=xterm script -qec '%1 refresh' /dev/null", true}, // a line that is erased
            {"TERM=dumb script -qec '%1 refresh' /dev/null", false},
            {"%1 status", false},
            {"CLICOLOR_FORCE=1 %1 status", true},
            {"CLICOLOR_FORCE=0 %1 status", false},
            {"CLICOLOR_FORCE=1 NO_COLOR=1 %1 status", false}};
        for (const auto& [command, isColoured] : rows) {
            const Run shown =
                runShell(u"export GAUGEWELL_USE_FIXTURES=1; "_s +
                         QString::fromLatin1(command).arg(QStringLiteral(TALLYVANE_PROGRAM)));
            QVERIFY2(shown.output.contains(u"Claude"), qPrintable(shown.output));
            QVERIFY2(shown.output.contains(u'\033') == isColoured, command);
        }
    }

    void keepsTheSettings() {
        installCodex("");
        const std::pair<const char*, const char*> rows[] = {
            {"appearance", "dark"},
            {"launch-at-login", "on"},
            {"providers", "codex"},
            {"providers", "claude"},
            {"notifications", "on"},
            {"notification-windows", "22:00-06:30, off all-day"},
            {"notification-windows", "none"},
            {"low-quota-notifications", "on"},
            {"codex-path", "$HOME/.local/bin/codex"}};
        for (const auto& [key, value] : rows) {
            const QString after = u" %1 "_s.arg(QLatin1StringView(key));
            const QString command = u"\"$0\" config set"_s + after + u'"' +
                                    QLatin1StringView(value) + u"\" && \"$0\" config get"_s + after;
            QString expected = QString::fromLatin1(value) + u'\n';
            const Run set = runShell(command);
            QCOMPARE(set.output, expected.replace(u"$HOME"_s, QDir::homePath()));
            QCOMPARE(set.error, QString());
        }
        QCOMPARE(
            run("config list").output,
            u"appearance = dark\nproviders = claude\nlaunch-at-login = on\nnotifications = on\n"
            "notification-windows = none\nlow-quota-notifications = on\ncodex-path = %1\n"_s.arg(
                inHome(".local/bin/codex")));
        for (const auto& [key, value] : rows) {
            QCOMPARE(runShell(u"\"$0\" config unset "_s + QLatin1StringView(key)).exitCode, 0);
        }
        QCOMPARE(run("config").output,
                 u"appearance = system\nproviders = both\nlaunch-at-login = off\n"
                 "notifications = off\nnotification-windows = 09:00-18:00\n"
                 "low-quota-notifications = off\n"
                 "codex-path = \n"_s);

        const Run odd = runShell(u"cd; cp .local/bin/codex \"`printf 'a\\033[2mb'`\"; "
                                 "\"$0\" config set codex-path \"$HOME/a\"*b; export P=\"$0\"; "
                                 "script -qec '\"$P\" config get codex-path' /dev/null"_s);
        QCOMPARE(odd.output, inHome("ab\r\n"));
        QCOMPARE(run("config unset codex-path").exitCode, 0);

        const std::pair<const char*, int> mistakes[] = {{"set appearance Dark", 2},
                                                        {"set notifications yes", 2},
                                                        {"set providers none", 2},
                                                        {"set notification-windows 9", 2},
                                                        {"set notification-windows 24:00-25:00", 2},
                                                        {"set colour red", 2},
                                                        {"set appearance", 2},
                                                        {"get", 2},
                                                        {"list appearance", 2},
                                                        {"put appearance dark", 2},
                                                        {"set codex-path codex", 1},
                                                        {"set codex-path /missing", 1}};
        for (const auto& [words, exitCode] : mistakes) {
            const Run refused = runShell(u"\"$0\" config "_s + QLatin1StringView(words));
            QVERIFY2(refused.exitCode == exitCode && refused.error.count(u'\n') == 1, words);
        }
        QCOMPARE(run("config get codex-path").output, u"\n"_s);
    }

    void hidesAProvider() {
        installCodex("echo >\"$HOME/started\"");
        QCOMPARE(run("config set providers claude").exitCode, 0);
        QVERIFY(!run("refresh").error.contains(u"Codex"));
        const std::tuple<const char*, const char*, const char*> rows[] = {
            {"status", "Claude", "Codex"},
            {"pace", "Claude", "Codex"},
            {"history", "Claude", "Codex"},
            {"status --waybar", "Claude", "Codex"},
            {"status --format {codex.state}-{claude.state}", "--unavailable", "--un-"},
            {"status --provider codex", "Codex", "Claude"},
            {"status --json", "codex", "hidden"},
            {"history --json", "codex", "hidden"},
            {"refresh --json", "\"codex\",\"syncState\":\"unav", "\"codex\":"},
            {"doctor", "Hidden, and not asked", "In use"}};
        for (const auto& [command, present, absent] : rows) {
            const QString shown = run(command).output;
            QVERIFY2(shown.contains(QLatin1StringView(present)) &&
                         !shown.contains(QLatin1StringView(absent)),
                     qPrintable(QLatin1StringView(command) + u": "_s + shown));
        }
        QVERIFY(!QFile::exists(inHome("started")) && QFile::remove(inHome(".local/bin/codex")));
        QCOMPARE(run("config set providers codex").exitCode, 0);
        QVERIFY(run("doctor --online").output.contains(u"Claude\n  – Hidden"));
    }

    void prefersVariablesInLowerCase() {
        tests::writeFile(inHome(".claude/.credentials.json"),
                         R"({"claudeAiOauth":{"accessToken":"x"}})");
        QVERIFY(runShell(u"https_proxy=ftp://a HTTPS_PROXY=gopher://b \"$0\" refresh"_s)
                    .error.contains(u"\"ftp\""));
        QVERIFY(runShell(u"HTTPS_PROXY=gopher://b \"$0\" refresh"_s).error.contains(u"\"gopher\""));
    }

    void becomesTheDesktopProgram() {
        const QString program = inHome("bin/tallyvane");
        QVERIFY(QDir::home().mkdir(u"bin"_s));
        QVERIFY(QFile::copy(QStringLiteral(TALLYVANE_PROGRAM), program));
        QVERIFY(QDir::home().mkpath(u"libexec/tallyvane"_s));
        QCOMPARE(run("status", program).exitCode, 4);
        const Run broken = run("refresh", program);
        QVERIFY2(broken.exitCode == 1 && broken.error.contains(u"/libtallyvane-program.so: "),
                 qPrintable(broken.error));
        QVERIFY(QFile::link(sharedLibrary, inHome("libexec/tallyvane/libtallyvane-program.so")));
        const Run absent = run("", program);
        QVERIFY2(absent.exitCode == 1 && absent.error.contains(u"not installed"),
                 qPrintable(absent.error));
        for (const char* command : {"refresh", "doctor"}) {
            const Run without = run(command, program);
            QVERIFY2((without.error + without.output).contains(u"/tallyvane-claude.so: "),
                     qPrintable(without.error));
        }
        install("libexec/tallyvane/tallyvane-desktop", "echo libexec $*; exit 42");
        const Run installed = run("--background", program);
        QCOMPARE(installed.output, u"libexec --background\n"_s);
        QCOMPARE(installed.exitCode, 42);
    }

    void goesThroughTheRunningProgram() {
        const tests::PrivateBus bus;
        const auto now =
            std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
        app::RefreshResult result{.snapshot = model::placeholderSnapshot(now)};
        result.snapshot.providers[1].syncedAt = now;
        platform::DBusApplication desktop([&result] { return refreshAnswer(result); });
        const QSignalSpy activated(&desktop, &platform::DBusApplication::activated);
        QCOMPARE(desktop.registerOnBus(), platform::DBusApplication::Registration::owner);

        const Run current = run("refresh");
        QCOMPARE(current.exitCode, 0);
        QVERIFY2(current.output.contains(u"Claude, synced just now") && current.error.isEmpty(),
                 qPrintable(current.output + current.error));
        QCOMPARE(run("refresh --json").output.toUtf8(), encodeRefreshResult(result) + '\n');

        result.report.uncounted = model::Message("Not counted.");
        QCOMPARE(run("refresh").exitCode, 1);
        result.report.uncounted.reset();
        result.report.failures[model::AIProvider::codex] = {
            .text = model::Message("Gone\u202E\u0085, a@b.example."),
            .advice = model::Message("Look.")};
        const Run failed = run("refresh");
        QCOMPARE(failed.exitCode, 3);
        QCOMPARE(failed.error, u"tallyvane: Codex: Gone, (e-mail address).\n  Look.\n"_s);
        QVERIFY(run("refresh --json").output.contains(u"Gone\\u202e\\u0085, (e-mail address)"));

        result.report.outcome = core::RefreshReport::Outcome::notSaved;
        result.report.notSaved = model::Message("Disk full.");
        const Run unsaved = run("refresh");
        QCOMPARE(unsaved.exitCode, 1);
        QVERIFY(unsaved.output.isEmpty() && unsaved.error.endsWith(u"Disk full.\n"_s));

        QCOMPARE(busMembers(tests::output("gdbus introspect --xml --session --dest "
                                          "org.corvelle.Tallyvane --object-path "
                                          "/org/corvelle/Tallyvane")),
                 documentedBusMembers());
        QCOMPARE(run("--background").exitCode, 0);
        QCOMPARE(activated.count(), 0);
        const QSignalSpy reloaded(&desktop, &platform::DBusApplication::reloadRequested);
        QCOMPARE(run("config set appearance dark").exitCode, 0);
        QCOMPARE(reloaded.count(), 1);
        QCOMPARE(runShell(u"XDG_ACTIVATION_TOKEN=token \"$0\""_s).exitCode, 0);
        QCOMPARE(activated.value(0), QVariantList{u"token"_s});
    }

    /// The bus could start the desktop program, but a command refreshes without it.
    void startsNoDesktopProgram() {
        install("desktop", "echo >\"$HOME/started\"; exit 1");
        tests::writeFile(inHome("services/desktop.service"),
                         "[D-BUS Service]\nName=org.corvelle.Tallyvane\nExec=" +
                             inHome("desktop").toUtf8() + '\n');
        const tests::PrivateBus bus;
        QCOMPARE(run("refresh").exitCode, 3);
        QVERIFY(!QFile::exists(inHome("started")));
        tests::output("gdbus call --session --dest org.corvelle.Tallyvane --object-path / "
                      "--method org.freedesktop.DBus.Peer.Ping");
        QVERIFY(QFile::exists(inHome("started")));
    }

    /// Each run ends right after it has told them.
    void tellsTheWidgets() {
        const tests::PrivateBus bus;
        QDBusConnection widget = QDBusConnection::connectToBus(bus.address(), bus.address());
        QVERIFY(widget.connect({}, u"/org/corvelle/Tallyvane"_s,
                               u"org.corvelle.Tallyvane.Widgets"_s, u"AllTimelinesReloaded"_s, this,
                               SLOT(countSignal())));
        constexpr int rounds = 60;
        for (int round = 0; round < rounds; ++round) {
            QCOMPARE(run("refresh").exitCode, 3);
        }
        TALLYVANE_TRY_COMPARE(m_signals, rounds);
    }

    void refreshesDespiteASilentBus() {
        QLocalServer bus;
        QVERIFY(bus.listen(inHome("bus")));
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.fullServerName().toUtf8());
        QCOMPARE(run("refresh").exitCode, 3);
        QVERIFY(bus.hasPendingConnections());
    }

    void refreshesWhenTheRunningProgramCrashes() {
        const tests::PrivateBus bus;
        tests::RunningProgram desktop(CRASHING_PROGRAM);
        QVERIFY(desktop.waitForReadyRead());
        const Run own = run("refresh");
        QCOMPARE(own.exitCode, 3);
        QVERIFY2(own.error.contains(u"Could not find Codex CLI."), qPrintable(own.error));
        QVERIFY(desktop.hasEnded());
    }

    void doesNotRefreshBesideAProgramThatFails() {
        const tests::PrivateBus bus;
        auto other = QDBusConnection::connectToBus(bus.address(), bus.address());
        QVERIFY(other.registerService(u"org.corvelle.Tallyvane"_s)); // and knows no call
        QCOMPARE(run("refresh").error, u"tallyvane: Tallyvane runs, but does not answer.\n"_s);
    }

    void refreshesAndReports() {
        tests::installCodex(42);
        const Run refresh = run("refresh");
        QCOMPARE(refresh.exitCode, 3);
        QVERIFY2(
            refresh.output.startsWith(u"Codex (Plus), synced just now\n  5 hours   58% left  ") &&
                refresh.output.contains(u"Claude, never synced\n"),
            qPrintable(refresh.output));
        QVERIFY2(refresh.error.startsWith(u"tallyvane: Claude: ") &&
                     refresh.error.endsWith(u"\n  Start 'claude' in a terminal and sign in.\n"),
                 qPrintable(refresh.error));
        QCOMPARE(run("status").output, refresh.output);
        const QByteArray stored = tests::readFile(inHome("data/Gaugewell/quota-snapshot.json"));
        QCOMPARE(model::decodeSnapshot(stored)->providers.at(1).statusMessage, u"Keychain auth"_s);
        QCOMPARE(run("status --json").output.toUtf8(), stored + '\n');
        QVERIFY(run("status --waybar").output.contains(u"\"text\":\"58%\""));
        const std::pair<const char*, int> limits[] = {
            {"--below 58", 0}, {"--below 59 --json", 1}, {"--below 59 --provider claude", 4}};
        for (const auto& [limit, exitCode] : limits) {
            const Run judged = runShell(u"\"$0\" status "_s + QLatin1StringView(limit));
            QVERIFY2(judged.exitCode == exitCode && !judged.output.isEmpty(), limit);
        }

        installCodex(R"(echo '{"error":{"message":"me@example.com: not signed in"},"id":1}'; cat)");
        const Run failed = run("refresh");
        QCOMPARE(failed.exitCode, 3);
        QVERIFY2(
            failed.error.contains(u"Codex: Command failed (-1): (e-mail address): not signed in\n"),
            qPrintable(failed.error));
        QVERIFY2(failed.output.contains(u"58% left  Sync pending\n"), qPrintable(failed.output));
        QVERIFY(!run("status --json").output.contains(u"not signed in"));
    }

    void runsTheDocumentedExamples() {
        tests::installCodex(42);
        QCOMPARE(run("refresh").exitCode, 3);
        const QString document = QString::fromUtf8(
            tests::readFile(QStringLiteral(TALLYVANE_TEST_DATA "/../../docs/status-bars.md")));
        const QRegularExpression form(u"tallyvane (status(?: --[a-z]+(?: '[^']*'| \\w+)?)+)"_s);
        int found = 0;
        const QStringList parts = document.split(u"```"_s);
        for (qsizetype block = 1; block < parts.size(); block += 2) {
            for (const auto& example : form.globalMatch(parts[block])) {
                const Run shown = run(example.captured(1).toUtf8());
                QVERIFY2(shown.exitCode == 0 && shown.error.isEmpty() && !shown.output.isEmpty() &&
                             !shown.output.contains(u'{'),
                         qPrintable(example.captured() + shown.output + shown.error));
                ++found;
            }
        }
        QCOMPARE(found, 9);
    }

    /// It may be about to store a new sign-in of its own, and the user does not wait for that.
    void letsCodexEndInItsOwnTime() {
        installCodex(R"(trap 'until [ -e "$HOME/go" ]; do sleep 0.01; done; : >"$HOME/ended"' TERM)"
                     R"(; echo '{"id":1,"result":{"rateLimits":{}}}'; sleep 1000 & wait)");
        QCOMPARE(run("refresh").exitCode, 3);
        QVERIFY(!QFile::exists(inHome("ended")));
        tests::writeFile(inHome("go"), {});
        TALLYVANE_TRY_VERIFY(QFile::exists(inHome("ended")));
    }

    void countsTokens() {
        const QByteArray log = R"({"type":"assistant","message":{"usage":{"output_tokens":1000}}})";
        const QString path = inHome(".claude/projects/-w/a.jsonl");
        tests::writeFile(path, log);
        QVERIFY(run("tokens").output.startsWith(
            u"Codex: 0 tokens\nClaude: 1000 tokens\n1 files counted, "));
        const QJsonDocument json = QJsonDocument::fromJson(run("tokens --json").output.toUtf8());
        QCOMPARE(json[u"totals"].toObject(), (QJsonObject{{u"codex"_s, 0}, {u"claude"_s, 1000}}));

        // What a refresh records is the increase.
        QCOMPARE(run("refresh").exitCode, 3);
        tests::writeFile(path, log + '\n' + QByteArray(log).replace("1000", "250"));
        QCOMPARE(run("refresh").exitCode, 3);
        QVERIFY(run("history --json").output.contains(u"\"estimatedLocalTokens\" : 250,"));
        for (const auto& [options, lines] : {std::pair{"", 3},
                                             {" --provider codex", 2},
                                             {" --csv --provider claude --since 2026-01-31", 2},
                                             {" --since 9000-01-01", 1}}) {
            const QString shown = run(QByteArray("history") + options).output;
            QVERIFY2(shown.count(u'\n') == lines, qPrintable(shown));
        }
    }

    /// Relative paths in the environment count as not set.
    void storesInAbsolutePlaces() {
        QVERIFY(QDir::home().mkdir(u"current"_s));
        runShell(u"cd \"$HOME/current\" && XDG_CONFIG_HOME=config XDG_DATA_HOME=../data "
                 "exec \"$0\" refresh"_s);
        QVERIFY(QDir(inHome("current")).isEmpty());
        QVERIFY(QFile::exists(inHome(".local/share/Gaugewell/quota-snapshot.json")));
    }

    /// Otherwise libraries would abort or hang.
    void refusesToRunWithoutResources() {
        // Root is exempt from the limit of a shell.
        const QString user = ::geteuid() == 0 ? u"exec setpriv --reuid=65534 --regid=65534 "
                                                "--clear-groups prlimit --nproc=8 \"$0\" refresh"_s
                                              : u"ulimit -u 8; exec \"$0\" refresh"_s;
        for (const QString& command : {user, u"ulimit -n 34; exec \"$0\" refresh"_s,
                                       u"ulimit -n 34; exec \"$0\" --background"_s}) {
            const Run refused = runShell(command);
            QVERIFY2(refused.exitCode == 1 && refused.error.count(u'\n') == 1 &&
                         refused.error.startsWith(u"tallyvane: The system gives"),
                     qPrintable(command + refused.error));
        }
    }

    void loadsLittle() {
        const QByteArray atOnce = tests::output("ldd " TALLYVANE_PROGRAM);
        QVERIFY(atOnce.contains("libQt6Core") && !atOnce.contains("libQt6DBus"));
        const QByteArray later = tests::output("ldd " + sharedLibrary.toUtf8());
        QVERIFY(later.contains("libQt6DBus") && !later.contains("libQt6Gui"));
    }
};

TALLYVANE_TEST(ProgramTest)
#include "program_test.moc"
