#include "history/local_token_estimator.h"
#include "support/descriptor_limit.h"
#include "support/test_main.h"

#include <QtCore/QTimer>

#include <csignal>
#include <fstream>
#include <poll.h>
#include <sys/fsuid.h>
#include <sys/inotify.h>
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
constexpr uid_t nobody = 65534;
constexpr std::chrono::seconds ageLimit = std::chrono::days(35);

std::string codexLine(qint64 tokens) {
    return R"({"payload":{"type":"token_count","info":{"total_token_usage":{"total_tokens":)" +
           std::to_string(tokens) + "}}}}\n";
}

history::TokenTotals totals(qint64 codex, qint64 claude) {
    return {{AIProvider::codex, codex}, {AIProvider::claude, claude}};
}

} // namespace

class SessionLogScanTest : public tests::HermeticTest {
    Q_OBJECT

    std::optional<QTemporaryDir> m_directory;
    fs::path m_home;
    fs::path m_codex;

    /// `name` is absolute or relative to the Codex logs.
    fs::path write(const fs::path& name, const std::string& bytes,
                   std::chrono::seconds age = 0s) const {
        const fs::path path = m_codex / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        fs::last_write_time(path, std::chrono::file_clock::from_sys(now - age));
        return path;
    }

    [[nodiscard]] history::ScanReport scan() const {
        return history::scanSessionLogs(history::logRoots(m_home), now, {});
    }

private Q_SLOTS:
    void init() {
        HermeticTest::init();
        m_directory.emplace();
        m_home = m_directory->path().toStdString();
        m_codex = m_home / ".codex" / "sessions";
        fs::create_directories(m_codex);
    }

    void selects() {
        write("a.jsonl", codexLine(1));
        write("2026/11/21/a b.c.jsonl", codexLine(10));
        write("folder.jsonl/a.jsonl", codexLine(100));
        write("folder.d/a.jsonl", codexLine(1000));
        write("future.jsonl", codexLine(10'000), -1000s);
        write("limit.jsonl", codexLine(100'000), ageLimit);
        write("old.jsonl", codexLine(2), ageLimit + 1s);
        for (const char* other : {".a.jsonl", ".hidden/a.jsonl", ".jsonl", "a.JSONL", "a.json",
                                  "a.jsonl.bak", "jsonl"}) {
            write(other, codexLine(2));
        }
        const history::ScanReport report = scan();
        QVERIFY(report.totals == totals(111'111, 0));
        QCOMPARE(report.countedFiles, 6);
        QVERIFY(report.skippedFiles == (std::map<SkipReason, int>{{SkipReason::tooOld, 1}}));
    }

    void readsRealLogs() {
        fs::remove_all(m_codex);
        QVERIFY(scan().totals == totals(0, 0));
        const fs::path data(TALLYVANE_TEST_DATA "/session-logs");
        fs::copy(data / "codex", m_codex, fs::copy_options::recursive);
        fs::create_directories(m_home / ".claude");
        fs::copy(data / "claude", m_home / ".claude/projects", fs::copy_options::recursive);
        qint64 size = 0;
        for (const auto& entry : fs::recursive_directory_iterator(m_home)) {
            if (entry.is_regular_file()) {
                size += static_cast<qint64>(entry.file_size());
                fs::last_write_time(entry.path(), std::chrono::file_clock::from_sys(now));
            }
        }
        const history::ScanReport report = scan();
        QVERIFY(report.totals == totals(6387, 65876));
        QCOMPARE(report.readBytes, size);
    }

    void limitsNumberAndSize() {
        for (int i = 0; i < 398; ++i) {
            write(std::to_string(i) + ".jsonl", codexLine(1), i == 200 ? 60s : 30s);
        }
        write("oldest.jsonl", codexLine(1000), 90s);
        const std::string padding(24'999'999 - codexLine(500).size(), 'x');
        write("large.jsonl", codexLine(500) + padding);
        write("too-large.jsonl", codexLine(700) + padding + 'x');
        write("not-utf8.jsonl", codexLine(900) + "\xFF");
        const history::ScanReport report = scan();
        QVERIFY(report.totals == totals(397 + 500, 0));
        QVERIFY(report.skippedFiles == (std::map<SkipReason, int>{{SkipReason::overLimit, 2},
                                                                  {SkipReason::tooLarge, 1},
                                                                  {SkipReason::notUtf8, 1}}));
    }

    void followsNoLinkAndOpensNoDevice() {
        const fs::path outside = write(m_home / "outside/a.jsonl", codexLine(5));
        fs::create_symlink(outside, m_codex / "link.jsonl");
        fs::create_symlink(outside.parent_path(), m_codex / "folder");
        fs::create_symlink(m_home / "nowhere", m_codex / "broken.jsonl");
        QCOMPARE(::mkfifo((m_codex / "pipe.jsonl").c_str(), 0600), 0);
        QVERIFY(scan().totals == totals(0, 0) && scan().skippedFiles.empty());

        fs::remove_all(m_codex);
        fs::create_directory_symlink(outside.parent_path(), m_codex);
        QVERIFY(scan().totals == totals(5, 0));
    }

    void skipsWhatItMayNotRead() {
        write("a.jsonl", codexLine(5));
        fs::permissions(write("b.jsonl", codexLine(6)), fs::perms::none);
        fs::permissions(write("c/c.jsonl", codexLine(7)).parent_path(), fs::perms::none);
        // Root may read everything, and so scans as another user, who has no way to m_home.
        fs::permissions(m_home, fs::perms::all);
        const fs::path before = fs::current_path();
        fs::current_path(m_home);
        ::setfsuid(nobody);
        const auto report = history::scanSessionLogs(history::logRoots("."), now, {});
        ::setfsuid(::geteuid());
        fs::current_path(before);
        fs::permissions(m_codex / "c", fs::perms::owner_all);
        QVERIFY(report.totals == totals(5, 0));
        QVERIFY(report.skippedFiles == (std::map<SkipReason, int>{{SkipReason::unreadable, 1}}));
    }

    /// Tokens missed now would be counted again later.
    void reportsALackOfDescriptors() {
        const tests::DescriptorLimit limit(0);
        QCOMPARE(scan().error, std::errc::too_many_files_open);
    }

    void toleratesConcurrentChanges() {
        std::string text;
        while (text.size() < 600'000) { // several blocks
            text += codexLine(5);
        }
        for (const char* name : {"grows.jsonl", "shrinks.jsonl", "vanishes.jsonl", "pipe.jsonl"}) {
            write(name, text);
        }
        {
            const std::jthread writer([&](const std::stop_token& stop) {
                while (!stop.stop_requested()) {
                    std::ofstream(m_codex / "grows.jsonl", std::ios::app) << codexLine(5);
                    fs::resize_file(m_codex / "shrinks.jsonl", 7);
                    fs::remove(m_codex / "vanishes.jsonl");
                    fs::remove(m_codex / "pipe.jsonl");
                    ::mkfifo((m_codex / "pipe.jsonl").c_str(), 0600);
                    write("shrinks.jsonl", text);
                    write("vanishes.jsonl", text);
                    fs::remove(m_codex / "pipe.jsonl");
                    write("pipe.jsonl", text);
                }
            });
            for (int round = 0; round < 20; ++round) {
                const qint64 codex = scan().totals.at(AIProvider::codex);
                QVERIFY2(codex >= 5 && codex <= 20, QByteArray::number(codex));
            }
        }
        QVERIFY(scan().totals == totals(20, 0));
    }

    void stopsReadingAFileThatGrowsTooLarge() {
        const fs::path log = write("a.jsonl", "");
        TALLYVANE_TRY_VERIFY(std::invoke([&] {
            fs::resize_file(log, 24'000'000); // holes read as NUL
            const int events = ::inotify_init1(IN_CLOEXEC);
            ::inotify_add_watch(events, log.c_str(), IN_ACCESS);
            std::jthread writer([&] {
                pollfd firstRead{.fd = events, .events = POLLIN};
                ::poll(&firstRead, 1, tests::patience);
                fs::resize_file(log, 48'000'000);
            });
            const history::ScanReport report = scan();
            writer.join();
            ::close(events);
            return report.readBytes > 0 && report.skippedFiles.contains(SkipReason::tooLarge);
        }));
    }

    void abortsOnOverflow() {
        constexpr auto most = std::numeric_limits<qint64>::max();
        write("a.jsonl", codexLine(most));
        QVERIFY(scan().totals == totals(most, 0));
        write("b.jsonl", codexLine(1));
        const pid_t child = ::fork();
        if (child == 0) {
            constexpr rlimit noCoreFile{};
            ::setrlimit(RLIMIT_CORE, &noCoreFile);
            ::signal(SIGABRT, SIG_DFL); // not Qt Test's handler
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
            ::_exit(scan().countedFiles);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT);
    }

    void estimatesBesideTheEventLoop() {
        write("a.jsonl", codexLine(5));
        for (int i = 0; i < 4; ++i) { // takes a while; holes read as NUL
            fs::resize_file(write(std::to_string(i) + ".jsonl", ""), 4'000'000);
        }
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
        timer.start(0);
        auto estimator = std::make_unique<history::LocalTokenEstimator>(m_home);
        auto first = estimator->estimate(now, {});
        auto second = estimator->estimate(now, {});
        QVERIFY(!first.isReady());
        QVERIFY(QCoro::waitFor(first) == totals(5, 0) && QCoro::waitFor(second) == totals(5, 0));
        QVERIFY(ticks > 0);

        std::stop_source stop;
        stop.request_stop();
        QVERIFY(QCoro::waitFor(estimator->estimate(now, stop.get_token())) == totals(0, 0));

        auto running = estimator->estimate(now, {});
        auto waiting = estimator->estimate(now, {});
        estimator.reset();
        QVERIFY(QCoro::waitFor(running) && QCoro::waitFor(waiting));
    }
};

TALLYVANE_TEST(SessionLogScanTest)
#include "session_log_scan_test.moc"
