#include "providers/advice.h"
#include "providers/codex/codex_quota_client.h"
#include "support/home_files.h"
#include "support/manual_clock.h"
#include "support/processes.h"
#include "support/test_main.h"

#include <QCoro/QCoroTask>

#include <sys/wait.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tallyvane;
using providers::ResponseCollector;
using tests::inHome;

namespace {

QString program(const char* name) {
    return QStringLiteral(TALLYVANE_TEST_DATA "/codex-programs/") + QLatin1StringView{name};
}

/// How many programs run that this test has started, however indirectly. They have its home
/// directory in their environment; this test itself was started with another one.
qsizetype runningPrograms() {
    return tests::processesIn(qgetenv("HOME")).size();
}

/// Whether this process has no child, not even a zombie.
bool hasNoChild() {
    siginfo_t ignored;
    return ::waitid(P_ALL, 0, &ignored, WEXITED | WNOHANG | WNOWAIT) != 0 && errno == ECHILD;
}

/// One fetch and its clock.
struct Fetch {
    /// The grace is longer than any test looks.
    explicit Fetch(const QStringList& candidates, std::chrono::milliseconds grace = 1min,
                   const QStringList& others = {})
        : program(defaults, {.standard = candidates, .others = others}),
          runner(clock, QProcessEnvironment::systemEnvironment(), grace),
          client(program, runner, clock) {
        QCoro::connect(client.fetch(providers::AskedBy::user), &context,
                       [this](const providers::QuotaResult& result) {
                           outcome = result ? *result->planName : result.error().text.text();
                           failure = result ? providers::QuotaFailure() : result.error();
                       });
    }

    tests::ManualClock clock{model::Timestamp{}};
    model::DefaultsStore defaults = *model::DefaultsStore::open(inHome("settings").toStdString());
    providers::CodexProgram program;
    providers::ProcessRunner runner;
    providers::CodexQuotaClient client;
    std::optional<QString> outcome;
    providers::QuotaFailure failure;
    QObject context;
};

} // namespace

class CodexQuotaClientTest final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        TALLYVANE_TRY_COMPARE(runningPrograms(), 0);
        TALLYVANE_TRY_VERIFY(hasNoChild());
        QFile::remove(inHome("ready"));
    }

    void answersAtOnce() {
        const auto check = [](const char* name, QStringView expected) {
            Fetch fetch({program(name)});
            TALLYVANE_TRY_VERIFY(fetch.outcome);
            QVERIFY2(fetch.outcome->endsWith(expected), qPrintable(*fetch.outcome));
            QCOMPARE(fetch.clock.pendingAlarms(), 0U);
        };
        check("reply-amid-noise", u"Plus");
        check("launcher-stays", u"Command failed (-1): sign in");
        check("floods", u"Command timed out.");
        check("no-interpreter", u"No such file or directory");
    }

    /// Its "node", which is not in PATH, lies beside the link to it.
    void startsALauncherOfAVersionManager() {
        const QByteArray reply = R"({"id":1,"result":{"rateLimits":{"planType":"plus"}}})";
        const QString version = inHome(".nvm/versions/node/v22.11.0/");
        const QString script = version + u"lib/node_modules/@openai/codex/bin/codex.js"_s;
        tests::writeFile(version + u"bin/node"_s, "#!/bin/sh\necho '" + reply + "'; read rest\n");
        tests::writeFile(script, "#!/usr/bin/env node\n");
        QVERIFY(QFile::link(script, version + u"bin/codex"_s));
        QVERIFY(QFile::link(version + u"bin/codex"_s, inHome("codex")));
        const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        qputenv("PATH", "/nonexistent");
        Fetch fetch({inHome("codex")});
        TALLYVANE_TRY_COMPARE(fetch.outcome, u"Plus"_s);

        QProcessEnvironment before;
        before.insert(u"PATH"_s, u"/bin::/sbin"_s);
        before.insert(u"OTHER"_s, u"x"_s);
        const auto after = providers::childEnvironment(before, u"/opt/x/codex"_s);
        QCOMPARE(after.toStringList(), (QStringList{u"OTHER=x"_s, u"PATH=/bin::/sbin:/opt/x"_s}));
    }

    void offersWhatItFindsButDoesNotStartIt() {
        const QByteArray marks = "#!/bin/sh\ntouch " + inHome("ready").toUtf8() + '\n';
        for (const char* name :
             {"path/codex", ".bun/bin/codex", ".nvm/versions/node/v9.0.0/bin/codex",
              ".nvm/versions/node/v22.2.0/bin/codex", ".nvm/versions/node/v22.11.0/bin/codex",
              "data/mise/installs/node/latest/bin/codex", "data/mise/installs/node/22/bin/codex"}) {
            tests::writeFile(inHome(name), marks);
        }
        QVERIFY(QDir::home().mkpath(u".volta/bin/codex"_s));
        const auto places =
            providers::codexPlaces(QDir::homePath(), inHome("data"), {inHome("path")});
        QStringList found = Fetch({}, 1min, places.others).program.findElsewhere();
        found.removeIf([](const QString& path) { return !path.startsWith(QDir::homePath()); });
        QCOMPARE(found.replaceInStrings(QDir::homePath(), u"~"_s),
                 (QStringList{u"~/.nvm/versions/node/v22.11.0/bin/codex"_s,
                              u"~/.nvm/versions/node/v22.2.0/bin/codex"_s,
                              u"~/.nvm/versions/node/v9.0.0/bin/codex"_s,
                              u"~/data/mise/installs/node/22/bin/codex"_s,
                              u"~/data/mise/installs/node/latest/bin/codex"_s,
                              u"~/.bun/bin/codex"_s, u"~/path/codex"_s}));

        Fetch refused({}, 1min, {inHome(".nvm/versions/node/*/bin")});
        QCOMPARE(refused.outcome, u"Could not find Codex CLI."_s);
        QCOMPARE(refused.failure.foundProgram, inHome(".nvm/versions/node/v22.11.0/bin/codex"));
        QVERIFY(refused.failure.advice.text().contains(u"once you agree"));
        QCOMPARE(providers::codexPathCommand(u"/a b/it's"_s),
                 u"tallyvane config set codex-path '/a b/it'\\''s'"_s);
        QVERIFY(!QFile::exists(inHome("ready")));
    }

    void startsWhatTheUserChose() {
        QVERIFY(Fetch({}).program.choose(program("reply-amid-noise")));
        Fetch fetch({program("hangs")});
        TALLYVANE_TRY_COMPARE(fetch.outcome, u"Plus"_s);

        const auto refusal = [&](const QString& path) {
            const auto chosen = fetch.program.choose(path);
            return chosen ? QString() : chosen.error();
        };
        QCOMPARE(refusal(u"codex"_s), u"Not an absolute path: codex"_s);
        QCOMPARE(refusal(u"/missing/codex"_s), u"Could not find /missing/codex."_s);
        QCOMPARE(refusal(u"/etc/passwd"_s), u"Not an executable file: /etc/passwd"_s);
        QCOMPARE(fetch.program.path(), program("reply-amid-noise"));

        // The manager of versions moves the program.
        const QString before = inHome("v1/codex");
        tests::writeFile(before, "#!/bin/sh\n");
        QVERIFY(fetch.program.choose(before));
        QVERIFY(QFile::remove(before));
        tests::writeFile(inHome("v2/codex"), "#!/bin/sh\n");
        Fetch moved({}, 1min, {inHome("*")});
        QCOMPARE(moved.outcome, u"Could not find %1."_s.arg(before));
        QCOMPARE(moved.failure.foundProgram, inHome("v2/codex"));
        QVERIFY(fetch.program.choose({}));
        QCOMPARE(fetch.program.path(), program("hangs"));
    }

    void timesOut() {
        const auto check = [](const char* name, const QString& expected,
                              std::chrono::milliseconds grace = 1min) {
            QFile::remove(inHome("ready"));
            Fetch fetch({program(name)}, grace);
            TALLYVANE_TRY_VERIFY(QFile::exists(inHome("ready")));
            for (int round = 0; round < 10; ++round) { // for the start, then for the output
                QCoreApplication::processEvents();
            }
            fetch.clock.suspend(1h);
            fetch.clock.advance(20s - 1ms);
            QCoreApplication::processEvents();
            QVERIFY2(!fetch.outcome, name);
            fetch.clock.advance(1ms);
            TALLYVANE_TRY_COMPARE(fetch.outcome, expected);
        };
        for (const char* name : {"hangs", "launcher-ends", "garbage", "starts-a-job"}) {
            check(name, u"Command timed out."_s);
        }
        check("dies", u"Command failed (-1): boom"_s);
        check("leaves-the-group", u"Command timed out."_s, 50ms); // It refuses to end.
    }

    /// Neither for its reply nor when the program ends: it keeps its grace period of a minute.
    void doesNotWaitForTheChildToEnd() {
        std::optional<Fetch> fetch(std::in_place, QStringList{program("refuses-to-end")});
        TALLYVANE_TRY_VERIFY(fetch->outcome);
        fetch.reset();
        QCOMPARE(runningPrograms(), 2);
        QCOMPARE(::kill(-tests::readFile(inHome("ready")).trimmed().toInt(), SIGKILL), 0);
        // After the grace, the guardian does that.
        fetch.emplace(QStringList{program("refuses-to-end")}, 50ms);
        TALLYVANE_TRY_VERIFY(fetch->outcome);
    }

    void collectsTheReply() {
        // The reply's member "r", or the text of the error at the time-out.
        const auto collected = [](const QByteArrayList& output, const QByteArrayList& errors = {}) {
            ResponseCollector collector;
            for (const QByteArray& chunk : errors) {
                collector.appendError(chunk);
            }
            for (const QByteArray& chunk : output) {
                collector.appendOutput(chunk);
            }
            collector.timeoutFired();
            const auto reply = collector.waitForResult().result();
            return reply ? (*reply)[u"r"].toString() : description(reply.error()).text();
        };
        const QByteArray found = "{\"id\":1,\"r\":\"found\"}\n";
        const QByteArray atLimit(ResponseCollector::maximumLineSize - found.size() + 1, ' ');
        QCOMPARE(collected({"{\"id\":0,\"r\":\"other\"}\n" + found}), u"found");
        QCOMPARE(collected({R"({"r":"found","i)", R"(d":1)", "", "}\n"}), u"found");
        QCOMPARE(collected({"\n[1]\n1\n{\"id\":\n{}\n\xff\n" + found}, {"warning"}), u"found");
        QCOMPARE(collected({found + "{\"id\":1}\n", "{\"id\":1}\n"}), u"found");
        QCOMPARE(collected({"{\"id\":1.0,\"r\":\"found\"}\r\n"}), u"found");
        QCOMPARE(collected({atLimit, found}), u"found");
        for (const QByteArray& useless :
             {QByteArray("{\"id\":\"1\"}\n{\"id\":true}\n{\"id\":1.5}\n"), found.chopped(1),
              atLimit + ' ' + found}) {
            QCOMPARE(collected({useless}), u"Command timed out.");
        }

        const QByteArray blank(ResponseCollector::maximumErrorSize - 9, ' ');
        QCOMPARE(collected({}, {blank, "\x1b[4mboom\xc3\xa9", "more"}),
                 u"Command failed (-1): boom");
        for (const char* silent : {" \n", "\x1b[0m\n\x1b[K", "boom \xff\xfe boom"}) {
            QCOMPARE(collected({}, {silent}), u"Command timed out.");
        }
    }

    void looksForARegularExecutable() {
        const QStringList unfit{inHome("missing"), QDir::homePath(), u"/etc/passwd"_s};
        QCOMPARE(Fetch(unfit).outcome, u"Could not find Codex CLI."_s);
        const QStringList candidates = unfit + QStringList{program("hangs"), program("dies")};
        QCOMPARE(providers::findExecutable(candidates), program("hangs"));
    }
};

TALLYVANE_TEST(CodexQuotaClientTest)
#include "codex_quota_client_test.moc"
