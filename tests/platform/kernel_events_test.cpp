#include "platform/linux/boot_clock.h"
#include "platform/linux/spare_resources.h"
#include "platform/linux/termination_signals.h"
#include "support/descriptor_limit.h"
#include "support/test_main.h"

#include <set>
#include <signal.h>

using namespace tallyvane;
using namespace std::chrono_literals;

class KernelEventsTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void ringsUnlessCancelled() {
        platform::BootClock clock;
        for (const rlim_t descriptors : {1024, 0}) {
            const tests::DescriptorLimit limit(descriptors);
            std::multiset<QByteArray> rung; // in any order: a slow machine finds both due
            auto cancelled = clock.after(1ms, [&] { rung.insert("cancelled"); });
            const auto later = clock.after(20ms, [&] { rung.insert("later"); });
            std::unique_ptr<platform::Alarm> atOnce;
            const QByteArray kept = "kept by the action until its end";
            atOnce = clock.after(0ms, [&rung, &atOnce, kept] {
                atOnce.reset(); // an action may destroy its alarm
                rung.insert(kept);
            });
            cancelled.reset();
            QVERIFY(rung.empty());
            TALLYVANE_TRY_VERIFY(rung == (std::multiset<QByteArray>{kept, "later"}));
        }
    }

    void catchesTerminationSignals() {
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            ::signal(number, SIG_DFL); // the test library has handlers of its own
            int calls = 0;
            {
                const platform::TerminationSignals signals([&calls] { ++calls; });
                ::raise(number);
                QCOMPARE(calls, 0);
                TALLYVANE_TRY_COMPARE(calls, 1);
            }
            QVERIFY(::signal(number, SIG_IGN) == SIG_DFL);
            const platform::TerminationSignals ignored([&calls] { ++calls; });
            QVERIFY(::signal(number, SIG_DFL) == SIG_IGN);
        }
    }

    /// 24 threads more, where the system has 300.
    void knowsWhereThreadsAreLimited() {
        const QByteArray full = "a/pids.max 30\na/pids.current 7";
        const QByteArray nearlyFull = "a/pids.max 31\na/pids.current 7";
        const std::tuple<const char*, QByteArray, rlim_t, bool> rows[] = {
            {"0::/a/b", nearlyFull + "\na/b/pids.max max", 324, true},
            {"0::/a/b", full + "\na/b/pids.max max", 324, false},
            {"0::/a/b", nearlyFull + "\na/b/pids.max max", 323, false},
            {"0::/a/b", "a/b/pids.max 40\na/b/pids.current 17", 324, false},
            {"0::/", "pids.max 30\npids.current 7", 324, false},
            {"0::/", "cgroup.procs 1", 324, true},
            {"0::/../cgroup", "b/pids.max max", 324, false},
            {"0::/unseen", "cgroup.procs 1", 324, false},
            {"9:cpu,pids:/a\n1:name=systemd:/c", "pids/a/pids.max max", 324, true},
            {"9:cpu,pids:/a", "pids/" + full, 324, false},
            {"9:cpu:/a", "a/pids.max max", 324, false},
            {"", "a/pids.max max", 324, false},
        };
        rlimit before{};
        ::getrlimit(RLIMIT_NPROC, &before);
        for (const auto& [groups, files, most, isAmple] : rows) {
            const QTemporaryDir root;
            const auto write = [&root](const QByteArray& name, const QByteArray& text) {
                const QString path = root.filePath(QString::fromUtf8(name));
                QVERIFY(QDir().mkpath(QFileInfo(path).path()));
                tests::writeFile(path, text + '\n');
            };
            write("proc/loadavg", "0.41 0.30 0.28 2/300 6789");
            write("proc/self/cgroup", groups);
            for (const QByteArray& line : files.split('\n')) {
                const QByteArrayList words = line.split(' ');
                write("sys/fs/cgroup/" + words[0], words[1]);
            }
            const rlimit limit{.rlim_cur = most, .rlim_max = before.rlim_max};
            ::setrlimit(RLIMIT_NPROC, &limit);
            const bool actual = platform::hasAmpleRoom(24, root.path().toStdString());
            ::setrlimit(RLIMIT_NPROC, &before);
            QVERIFY2(actual == isAmple, groups + ("; " + files));
        }
    }
};

TALLYVANE_TEST(KernelEventsTest)
#include "kernel_events_test.moc"
