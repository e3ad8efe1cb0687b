#include "history/local_token_estimator.h"
#include "support/test_main.h"

#include <QtCore/QTimer>

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace tallyvane;
using namespace std::chrono_literals;
using history::SkipReason;
using model::AIProvider;
namespace fs = std::filesystem;

namespace {

const model::Timestamp now =
    std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
constexpr std::chrono::seconds ageLimit = std::chrono::days(35);

std::string codexLine(qint64 tokens) {
    return R"({"payload":{"type":"token_count","info":{"total_token_usage":{"total_tokens":)" +
           std::to_string(tokens) + "}}}}\n";
}

/// A home directory of its own.
struct Home {
    QTemporaryDir directory;
    fs::path root{directory.path().toStdString()};
    fs::path codex = root / ".codex" / "sessions";

    Home() { fs::create_directories(codex); }

    fs::path write(const fs::path& name, const std::string& bytes,
                   std::chrono::seconds age = 0s) const {
        const fs::path path = root / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        fs::last_write_time(path, std::chrono::file_clock::from_sys(now - age));
        return path;
    }

    [[nodiscard]] history::ScanReport scan(const std::stop_token& stop = {}) const {
        return history::scanSessionLogs(history::logRoots(root), now, stop);
    }
};

history::TokenTotals totals(qint64 codex, qint64 claude) {
    return {{AIProvider::codex, codex}, {AIProvider::claude, claude}};
}

} // namespace

class SessionLogScanTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void selects_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("age");
        QTest::addColumn<bool>("counts");
        QTest::addColumn<QString>("reason"); // of a log that is skipped, if it is told
        const auto row = [](const char* name, bool counts, int age = 0, const char* reason = "") {
            QTest::addRow("%s, %d s", name, age)
                << QString::fromLatin1(name) << age << counts << QString::fromLatin1(reason);
        };
        const int limit = static_cast<int>(ageLimit.count());
        row("a.jsonl", true);
        row("2026/11/21/a b.c.jsonl", true);
        row("folder.jsonl/a.jsonl", true);
        row("folder.d/a.jsonl", true);
        row("a.jsonl", true, -1000);
        row("a.jsonl", true, limit);
        row("a.jsonl", false, limit + 1, "tooOld");
        row(".a.jsonl", false);
        row(".hidden/a.jsonl", false);
        row(".jsonl", false);
        row("a.JSONL", false);
        row("a.json", false);
        row("a.jsonl.bak", false);
        row("jsonl", false);
    }

    void selects() {
        QFETCH(QString, name);
        QFETCH(int, age);
        QFETCH(bool, counts);
        QFETCH(QString, reason);
        const Home home;
        home.write(home.codex / name.toStdString(), codexLine(5), std::chrono::seconds(age));
        const history::ScanReport report = home.scan();
        QVERIFY(report.totals == totals(counts ? 5 : 0, 0));
        QCOMPARE(report.countedFiles, counts ? 1 : 0);
        const auto skip = model::fromRawValue<SkipReason>(reason);
        QVERIFY(report.skippedFiles ==
                (skip ? std::map<SkipReason, int>{{*skip, 1}} : std::map<SkipReason, int>{}));
    }

    void readsRealLogs() {
        const Home home;
        const fs::path data(TALLYVANE_TEST_DATA "/session-logs");
        fs::copy(data / "codex", home.codex, fs::copy_options::recursive);
        fs::create_directories(home.root / ".claude");
        fs::copy(data / "claude", home.root / ".claude/projects", fs::copy_options::recursive);
        qint64 size = 0;
        for (const auto& entry : fs::recursive_directory_iterator(home.root)) {
            if (entry.is_regular_file()) {
                size += static_cast<qint64>(entry.file_size());
                fs::last_write_time(entry.path(), std::chrono::file_clock::from_sys(now));
            }
        }
        const history::ScanReport report = home.scan();
        QVERIFY(report.totals == totals(6387, 65876));
        QCOMPARE(report.readBytes, size);
        QVERIFY(Home().scan().totals == totals(0, 0));
    }

    void takesTheNewest() {
        const Home home;
        for (int i = 0; i < 401; ++i) {
            home.write(home.codex / (std::to_string(i) + ".jsonl"), codexLine(i == 200 ? 1000 : 1),
                       i == 200 ? 60s : 30s);
        }
        const history::ScanReport report = home.scan();
        QVERIFY(report.totals == totals(400, 0));
        QCOMPARE(report.skippedFiles.at(SkipReason::overLimit), 1);
    }

    void limitsTheSize() {
        const Home home;
        const std::string padding(24'999'999 - codexLine(5).size(), 'x');
        home.write(home.codex / "a.jsonl", codexLine(5) + padding);
        home.write(home.codex / "b.jsonl", codexLine(7) + padding + 'x');
        home.write(home.codex / "c.jsonl", codexLine(9) + "\xFF");
        const history::ScanReport report = home.scan();
        QVERIFY(report.totals == totals(5, 0));
        QCOMPARE(report.skippedFiles.at(SkipReason::tooLarge), 1);
        QCOMPARE(report.skippedFiles.at(SkipReason::notUtf8), 1);
    }

    void entersNoLinkAndOpensNoDevice() {
        const Home home;
        const fs::path outside = home.write("outside/a.jsonl", codexLine(5));
        fs::create_symlink(outside, home.codex / "link.jsonl");
        fs::create_symlink(outside.parent_path(), home.codex / "folder");
        fs::create_symlink(home.root / "nowhere", home.codex / "broken.jsonl");
        QCOMPARE(::mkfifo((home.codex / "pipe.jsonl").c_str(), 0600), 0);
        QVERIFY(home.scan().totals == totals(0, 0));
        QVERIFY(home.scan().skippedFiles.empty());

        fs::remove_all(home.codex);
        fs::create_directory_symlink(outside.parent_path(), home.codex);
        QVERIFY(home.scan().totals == totals(5, 0));
    }

    void passesOverWhatItMayNotRead() {
        const Home home;
        fs::permissions(home.root, fs::perms::all);
        home.write(home.codex / "a.jsonl", codexLine(5));
        fs::permissions(home.write(home.codex / "b.jsonl", codexLine(6)), fs::perms::none);
        fs::permissions(home.write(home.codex / "c/c.jsonl", codexLine(7)).parent_path(),
                        fs::perms::none);
        const pid_t child = ::fork();
        if (child == 0) {
            constexpr uid_t nobody = 65534;
            const bool isUser = ::geteuid() != 0 || ::setuid(nobody) == 0;
            const history::ScanReport report = home.scan();
            const bool isRight = report.totals == totals(5, 0) &&
                                 report.skippedFiles.at(SkipReason::unreadable) == 1;
            ::_exit(isUser && isRight ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        fs::permissions(home.codex / "c", fs::perms::owner_all);
        QCOMPARE(status, 0);
    }

    /// Fewer tokens than there are would be counted again later.
    void tellsWhenItCannotReadAll() {
        const Home home;
        fs::path deep = home.codex;
        for (int level = 0; level < 50; ++level) {
            deep /= "d";
        }
        home.write(deep / "a.jsonl", codexLine(5));
        rlimit before{};
        ::getrlimit(RLIMIT_NOFILE, &before);
        const int next = ::dup(0); // the lowest that is free
        ::close(next);
        const auto scanWith = [&](int descriptors) {
            const rlimit few{static_cast<rlim_t>(next + descriptors), before.rlim_max};
            ::setrlimit(RLIMIT_NOFILE, &few);
            history::ScanReport report = home.scan();
            ::setrlimit(RLIMIT_NOFILE, &before);
            return report;
        };
        QCOMPARE(scanWith(0).error, std::errc::too_many_files_open);
        const history::ScanReport enough = scanWith(1);
        QVERIFY(!enough.error && enough.totals == totals(5, 0));
    }

    void countsWhatChangesMeanwhile() {
        const Home home;
        const std::string line = codexLine(5);
        std::string logText;
        while (logText.size() < 600'000) { // more than is read at once
            logText += line;
        }
        for (const char* name : {"grows", "shrinks", "vanishes", "becomes-a-pipe"}) {
            home.write(home.codex / (std::string(name) + ".jsonl"), logText);
        }
        {
            const std::jthread writer([&](const std::stop_token& stop) {
                while (!stop.stop_requested()) {
                    std::ofstream(home.codex / "grows.jsonl", std::ios::app) << line;
                    fs::resize_file(home.codex / "shrinks.jsonl", 7);
                    fs::remove(home.codex / "vanishes.jsonl");
                    fs::remove(home.codex / "becomes-a-pipe.jsonl");
                    ::mkfifo((home.codex / "becomes-a-pipe.jsonl").c_str(), 0600);
                    home.write(home.codex / "shrinks.jsonl", logText);
                    home.write(home.codex / "vanishes.jsonl", logText);
                    fs::remove(home.codex / "becomes-a-pipe.jsonl");
                    home.write(home.codex / "becomes-a-pipe.jsonl", logText);
                }
            });
            for (int round = 0; round < 20; ++round) {
                const history::ScanReport report = home.scan();
                const qint64 codex = report.totals.at(AIProvider::codex);
                QVERIFY2(codex >= 5 && codex <= 20, qPrintable(QString::number(codex)));
            }
        }
        QVERIFY(home.scan().totals == totals(20, 0));
    }

    void endsTheProgramOnOverflow() {
        const Home home;
        constexpr qint64 most = std::numeric_limits<qint64>::max();
        home.write(home.codex / "a.jsonl", codexLine(most));
        QVERIFY(home.scan().totals == totals(most, 0));
        home.write(home.codex / "b.jsonl", codexLine(1));
        const pid_t child = ::fork();
        if (child == 0) {
            constexpr rlimit noCoreFile{};
            ::setrlimit(RLIMIT_CORE, &noCoreFile);
            ::signal(SIGABRT, SIG_DFL); // not Qt Test's report
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
            ::_exit(home.scan().countedFiles);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT);
    }

    void stops() {
        const Home home;
        home.write(home.codex / "a.jsonl", codexLine(5));
        std::stop_source stop;
        stop.request_stop();
        QCOMPARE(home.scan(stop.get_token()).countedFiles, 0);
    }

    void estimatesBesideTheEventLoop() {
        const Home home;
        home.write(home.codex / "a.jsonl", codexLine(5));
        for (int i = 0; i < 4; ++i) { // to keep it busy for a while; holes read as NUL
            fs::resize_file(home.write(home.codex / (std::to_string(i) + ".jsonl"), ""), 4'000'000);
        }
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
        timer.start(0);
        history::LocalTokenEstimator estimator(home.root);
        auto first = estimator.estimate(now, {});
        auto second = estimator.estimate(now, {});
        QVERIFY(!first.isReady());
        QVERIFY(QCoro::waitFor(first) == totals(5, 0));
        QVERIFY(QCoro::waitFor(second) == totals(5, 0));
        QVERIFY(ticks > 0);

        std::stop_source stop;
        stop.request_stop();
        QVERIFY(QCoro::waitFor(estimator.estimate(now, stop.get_token())) == totals(0, 0));
    }

    void endsWhileItCounts() {
        const Home home;
        home.write(home.codex / "a.jsonl", codexLine(5));
        auto estimator = std::make_unique<history::LocalTokenEstimator>(home.root);
        auto running = estimator->estimate(now, {});
        auto waiting = estimator->estimate(now, {});
        estimator.reset();
        QCOMPARE(QCoro::waitFor(running)->size(), 2U);
        QCOMPARE(QCoro::waitFor(waiting)->size(), 2U);
    }
};

TALLYVANE_TEST_MAIN(SessionLogScanTest)
#include "session_log_scan_test.moc"
