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
    explicit Fetch(const QStringList& candidates, std::chrono::milliseconds grace = 1min)
        : runner(clock, grace), client(candidates, runner, clock) {
        QCoro::connect(client.fetch(providers::AskedBy::user), &context,
                       [this](const providers::QuotaResult& result) {
                           outcome = result ? *result->planName : result.error().text;
                       });
    }

    tests::ManualClock clock{model::Timestamp{}};
    providers::ProcessRunner runner;
    providers::CodexQuotaClient client;
    std::optional<QString> outcome;
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
        for (const char* name : {"hangs", "launcher-ends", "garbage"}) {
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
            return reply ? (*reply)[u"r"].toString() : description(reply.error());
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
