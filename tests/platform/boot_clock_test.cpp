#include "platform/linux/boot_clock.h"
#include "support/descriptor_limit.h"
#include "support/test_main.h"

using namespace tallyvane;
using namespace std::chrono_literals;

class BootClockTest : public tests::HermeticTest {
    Q_OBJECT

    platform::BootClock m_clock;

private Q_SLOTS:
    void ringsInOrderUnlessCancelled() {
        for (const int descriptors : {1024, 0}) {
            const tests::DescriptorLimit limit(static_cast<rlim_t>(descriptors));
            QList<int> rung;
            auto cancelled = m_clock.after(1ms, [&] { rung.append(0); });
            const auto later = m_clock.after(20ms, [&] { rung.append(2); });
            const auto atOnce = m_clock.after(0ms, [&] { rung.append(1); });
            cancelled.reset();
            QVERIFY(rung.isEmpty());
            QTRY_COMPARE(rung, (QList{1, 2}));
        }
    }

    void anActionMayDestroyItsAlarm() {
        std::unique_ptr<platform::Alarm> alarm;
        QString text = QStringLiteral("kept by the action until its end");
        QString seen;
        alarm = m_clock.after(1ms, [&alarm, &seen, text] {
            alarm.reset();
            seen = text;
        });
        QTRY_COMPARE(seen, text);
        QVERIFY(!alarm);
    }
};

TALLYVANE_TEST_MAIN(BootClockTest)
#include "boot_clock_test.moc"
