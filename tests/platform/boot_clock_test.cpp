#include "platform/linux/boot_clock.h"
#include "support/descriptor_limit.h"
#include "support/test_main.h"

using namespace tallyvane;
using namespace std::chrono_literals;

class BootClockTest : public tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void ringsInOrderUnlessCancelled() {
        platform::BootClock clock;
        for (const rlim_t descriptors : {1024, 0}) {
            const tests::DescriptorLimit limit(descriptors);
            QByteArrayList rung;
            auto cancelled = clock.after(1ms, [&] { rung << "cancelled"; });
            const auto later = clock.after(20ms, [&] { rung << "later"; });
            std::unique_ptr<platform::Alarm> atOnce;
            const QByteArray kept = "kept by the action until its end";
            atOnce = clock.after(0ms, [&rung, &atOnce, kept] {
                atOnce.reset(); // an action may destroy its alarm
                rung << kept;
            });
            cancelled.reset();
            QVERIFY(rung.isEmpty());
            QTRY_COMPARE(rung, (QByteArrayList{kept, "later"}));
        }
    }
};

TALLYVANE_TEST(BootClockTest)
#include "boot_clock_test.moc"
