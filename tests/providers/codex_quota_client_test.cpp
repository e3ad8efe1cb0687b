#include "providers/codex/codex_quota_client.h"
#include "support/home_files.h"
#include "support/manual_clock.h"
#include "support/processes.h"
#include "support/test_main.h"

#include <QCoro/QCoroTask>
#include <QtCore/QProcess>

#include <cerrno>
#include <chrono>
#include <optional>
#include <signal.h>
#include <sys/wait.h>

using namespace tallyvane;
using namespace std::chrono_literals;

namespace {

constexpr int patience = 20'000; // ms; for what happens soon

QString inHome(const char* name) {
    return qEnvironmentVariable("HOME") + u'/' + QLatin1StringView{name};
}

QString program(const QString& name) {
    return QStringLiteral(TALLYVANE_TEST_DATA "/codex-programs/") + name;
}

/// How many programs run that this test has started, however indirectly. They have its home
/// directory in their environment; this test had another when it was started.
int runningPrograms() {
    return static_cast<int>(tests::processesIn(qgetenv("HOME")).size());
}

/// Whether this process has no child, not even one that ended without being waited for.
bool hasNoChild() {
    siginfo_t ignored;
    return ::waitid(P_ALL, 0, &ignored, WEXITED | WNOHANG | WNOWAIT) != 0 && errno == ECHILD;
}

QString outcome(const providers::QuotaResult& result) {
    return result ? result->planName.value_or(QString{}) : result.error().text;
}

/// A client on a clock of its own and its one fetch.
struct Fetch {
    explicit Fetch(const QStringList& candidates) : client(candidates, runner, clock) {
        QCoro::connect(client.fetch(providers::AskedBy::user), &context,
                       [this](const providers::QuotaResult& value) { result.emplace(value); });
    }

    tests::ManualClock clock{model::Timestamp{}};
    providers::ProcessRunner runner{clock, 1min}; // long enough for what a test looks at
    providers::CodexQuotaClient client;
    std::optional<providers::QuotaResult> result;
    QObject context;
};

} // namespace

class TestCodexQuotaClient final : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        QTRY_COMPARE_WITH_TIMEOUT(runningPrograms(), 0, patience);
        QTRY_VERIFY_WITH_TIMEOUT(hasNoChild(), patience);
        QFile::remove(inHome("ready"));
    }

    void answersAtOnce_data() {
        QTest::addColumn<QString>("expected");
        QTest::newRow("reply-amid-noise") << QStringLiteral("Plus");
        QTest::newRow("launcher-stays") << QStringLiteral("Command failed (-1): sign in");
        QTest::newRow("floods") << QStringLiteral("Command timed out.");
        QTest::newRow("no-interpreter") << QStringLiteral("No such file or directory");
        QTest::newRow("no-program") << QStringLiteral("Exec format error");
    }

    void answersAtOnce() {
        QFETCH(QString, expected);
        Fetch fetch({program(QLatin1StringView{QTest::currentDataTag()})});
        QTRY_VERIFY_WITH_TIMEOUT(fetch.result, patience);
        QVERIFY2(outcome(*fetch.result).endsWith(expected), qPrintable(outcome(*fetch.result)));
        QCOMPARE(fetch.clock.pendingAlarms(), std::size_t{0});
    }

    void timesOut_data() {
        QTest::addColumn<QString>("expected");
        QTest::newRow("hangs") << QStringLiteral("Command timed out.");
        QTest::newRow("launcher-ends") << QStringLiteral("Command timed out.");
        QTest::newRow("dies") << QStringLiteral("Command failed (-1): boom");
        QTest::newRow("garbage") << QStringLiteral("Command timed out.");
    }

    void timesOut() {
        Fetch fetch({program(QLatin1StringView{QTest::currentDataTag()})});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(inHome("ready")), patience);
        for (int round = 0; round < 10; ++round) { // notice the start, then read what is there
            QCoreApplication::processEvents();
        }
        fetch.clock.suspend(1h);
        fetch.clock.advance(19'999ms);
        QCoreApplication::processEvents();
        QVERIFY(!fetch.result);
        fetch.clock.advance(1ms);
        QTRY_VERIFY_WITH_TIMEOUT(fetch.result, patience);
        QTEST(outcome(*fetch.result), "expected");
    }

    void doesNotWaitForTheChildToEnd() {
        Fetch fetch({program(QStringLiteral("refuses-to-end"))});
        QTRY_VERIFY_WITH_TIMEOUT(fetch.result, patience);
        QCOMPARE(runningPrograms(), 2);
        QCOMPARE(::kill(-tests::readFile(inHome("ready")).trimmed().toInt(), SIGKILL), 0);
    }

    void leavesNothingWhenKilled_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"refuses-to-end", "leaves-the-group"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void leavesNothingWhenKilled() {
        QFETCH(QString, name);
        QProcess runner;
        runner.start(QCoreApplication::applicationDirPath() + QStringLiteral("/hanging_runner"),
                     {program(name)});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(inHome("ready")), patience);
        runner.kill();
        QVERIFY(runner.waitForFinished());
    }

    void looksForARegularExecutable() {
        const QStringList unfit{inHome("missing"), inHome(""), QStringLiteral("/etc/passwd")};
        const Fetch fetch(unfit);
        QVERIFY(fetch.result);
        QCOMPARE(outcome(*fetch.result), QStringLiteral("Could not find Codex CLI."));

        const QString first = program(QStringLiteral("hangs"));
        const QStringList candidates = unfit + QStringList{first, QStringLiteral("/bin/sh")};
        QCOMPARE(providers::findExecutable(candidates), std::optional(first));
    }
};

TALLYVANE_TEST_MAIN(TestCodexQuotaClient)
#include "codex_quota_client_test.moc"
