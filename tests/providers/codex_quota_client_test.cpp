#include "providers/codex/codex_quota_client.h"
#include "support/home_files.h"
#include "support/manual_clock.h"
#include "support/processes.h"
#include "support/test_main.h"

#include <QCoro/QCoroTask>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QProcess>

#include <cerrno>
#include <optional>
#include <signal.h>
#include <sys/wait.h>

using namespace tallyvane;
using namespace std::chrono_literals;
using providers::ResponseCollector;

namespace {

constexpr int patience = 20'000; // ms

QString inHome(const char* name) {
    return QDir::homePath() + u'/' + QLatin1StringView{name};
}

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
    explicit Fetch(const QStringList& candidates) : client(candidates, runner, clock) {
        QCoro::connect(client.fetch(providers::AskedBy::user), &context,
                       [this](const providers::QuotaResult& result) {
                           outcome = result ? *result->planName : result.error().text;
                       });
    }

    tests::ManualClock clock{model::Timestamp{}};
    providers::ProcessRunner runner{clock, 1min}; // longer than any test looks
    providers::CodexQuotaClient client;
    std::optional<QString> outcome;
    QObject context;
};

} // namespace

class CodexQuotaClientTest final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        QTRY_COMPARE_WITH_TIMEOUT(runningPrograms(), 0, patience);
        QTRY_VERIFY_WITH_TIMEOUT(hasNoChild(), patience);
        QFile::remove(inHome("ready"));
    }

    void answersAtOnce() {
        const auto check = [](const char* name, const char* expected) {
            Fetch fetch({program(name)});
            QTRY_VERIFY2_WITH_TIMEOUT(fetch.outcome, name, patience);
            QVERIFY2(fetch.outcome->endsWith(QLatin1StringView(expected)),
                     qPrintable(*fetch.outcome));
            QCOMPARE(fetch.clock.pendingAlarms(), 0U);
        };
        check("reply-amid-noise", "Plus");
        check("launcher-stays", "Command failed (-1): sign in");
        check("floods", "Command timed out.");
        check("no-interpreter", "No such file or directory");
        check("no-program", "Exec format error");
    }

    void timesOut() {
        const auto check = [](const char* name, const char* expected) {
            QFile::remove(inHome("ready"));
            Fetch fetch({program(name)});
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(inHome("ready")), patience);
            for (int round = 0; round < 10; ++round) { // for the start, then for the output
                QCoreApplication::processEvents();
            }
            fetch.clock.suspend(1h);
            fetch.clock.advance(20s - 1ms);
            QCoreApplication::processEvents();
            QVERIFY2(!fetch.outcome, name);
            fetch.clock.advance(1ms);
            QTRY_COMPARE_WITH_TIMEOUT(fetch.outcome, QString::fromLatin1(expected), patience);
        };
        check("hangs", "Command timed out.");
        check("launcher-ends", "Command timed out.");
        check("garbage", "Command timed out.");
        check("dies", "Command failed (-1): boom");
    }

    /// Neither for its reply nor when the program ends: it keeps its grace period.
    void doesNotWaitForTheChildToEnd() {
        const QDeadlineTimer deadline(patience);
        std::optional<Fetch> fetch(std::in_place, QStringList{program("refuses-to-end")});
        QTRY_VERIFY_WITH_TIMEOUT(fetch->outcome, patience);
        fetch.reset();
        QCOMPARE(runningPrograms(), 2);
        QVERIFY(!deadline.hasExpired());
        QCOMPARE(::kill(-tests::readFile(inHome("ready")).trimmed().toInt(), SIGKILL), 0);
    }

    void leavesNothingWhenKilled() {
        for (const char* name : {"refuses-to-end", "leaves-the-group"}) {
            QProcess runner;
            runner.start(QCoreApplication::applicationDirPath() + QStringLiteral("/hanging_runner"),
                         {program(name)});
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(inHome("ready")), patience);
            runner.kill();
            QVERIFY(runner.waitForFinished());
            cleanup();
        }
    }

    void collectsTheReply() {
        // `expected` is the reply's member "r", or the text of the error at the time-out.
        const auto check = [](const char* name, const QByteArrayList& output,
                              const QByteArrayList& errors, const char* expected) {
            ResponseCollector collector;
            for (const QByteArray& chunk : errors) {
                collector.appendError(chunk);
            }
            for (const QByteArray& chunk : output) {
                collector.appendOutput(chunk);
            }
            collector.timeoutFired();
            const auto reply = collector.waitForResult().result();
            const QString text = reply ? (*reply)[u"r"].toString() : description(reply.error());
            QVERIFY2(text == QLatin1StringView(expected), name);
        };
        const QByteArray found = "{\"id\":1,\"r\":\"found\"}\n";
        const char* const timedOut = "Command timed out.";
        const char* const failed = "Command failed (-1): boom";
        const QByteArray atLimit(ResponseCollector::maximumLineSize - found.size() + 1, ' ');
        const QByteArray blank(ResponseCollector::maximumErrorSize - 5, ' ');
        check("after another reply", {"{\"id\":0,\"r\":\"other\"}\n" + found}, {}, "found");
        check("split within the id", {R"({"r":"found","i)", R"(d":1)", "", "}\n"}, {}, "found");
        check("amid noise", {"\n[1]\n1\n{\"id\":\n{}\n\xff\n" + found}, {"warning"}, "found");
        check("first of several", {found + "{\"id\":1}\n", "{\"id\":1}\n"}, {}, "found");
        check("id 1.0", {"{\"id\":1.0,\"r\":\"found\"}\r\n"}, {}, "found");
        check("other ids", {"{\"id\":\"1\"}\n{\"id\":true}\n{\"id\":1.5}\n"}, {}, timedOut);
        check("no newline", {found.chopped(1)}, {}, timedOut);
        check("line at the limit", {atLimit, found}, {}, "found");
        check("line over the limit", {atLimit + ' ', found}, {}, timedOut);
        check("standard error", {}, {"  bo", "om \n"}, failed);
        check("blank standard error", {}, {" \n"}, timedOut);
        check("coloured standard error", {}, {"\x1b[31mbo\x1b[1;4mom \n\x1b[0m\n"}, failed);
        check("only colours", {}, {"\x1b[0m\n\x1b[K"}, timedOut);
        check("not UTF-8", {}, {"boom \xff\xfe boom"}, timedOut);
        check("cut within a character", {}, {blank, "boom\xc3\xa9", "more"}, failed);
    }

    void looksForARegularExecutable() {
        const QStringList unfit{inHome("missing"), inHome(""), QStringLiteral("/etc/passwd")};
        QCOMPARE(Fetch(unfit).outcome, QStringLiteral("Could not find Codex CLI."));
        const QStringList candidates = unfit + QStringList{program("hangs"), program("dies")};
        QCOMPARE(providers::findExecutable(candidates), program("hangs"));
    }
};

TALLYVANE_TEST(CodexQuotaClientTest)
#include "codex_quota_client_test.moc"
