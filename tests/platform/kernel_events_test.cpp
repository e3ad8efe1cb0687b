#include "platform/linux/boot_clock.h"
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
};

TALLYVANE_TEST(KernelEventsTest)
#include "kernel_events_test.moc"
