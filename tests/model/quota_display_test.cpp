#include "model/quota_display.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane::model;

class QuotaDisplayTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

    /// A Tuesday
    const Timestamp m_midnight = std::chrono::sys_days{std::chrono::year{2025} / 1 / 28};

private Q_SLOTS:
    void resetTexts() {
        using enum QuotaSyncState;
        const WeekdayTimeFormat weekdayTime("en_US", LocalZone(QTimeZone::utc()));
        const auto text = [&](QuotaSyncState state, std::optional<std::chrono::seconds> left,
                              const std::optional<QString>& message = {}) {
            return resetText(left ? std::optional(m_midnight + *left) : std::nullopt,
                             {.syncState = state, .statusMessage = message}, m_midnight,
                             weekdayTime);
        };
        const QString limited = QStringLiteral("Rate limited");
        QCOMPARE(text(pending, 60s), u"Sync pending");
        QCOMPARE(text(pending, 60s, limited), limited);
        QCOMPARE(text(unavailable, 60s, limited), u"Not available");
        QCOMPARE(text(current, {}, limited), u"Reset unknown");
        QCOMPARE(text(current, 0s), u"Sync pending");
        QCOMPARE(text(current, 1s), u"in 1m");
        QCOMPARE(text(current, 119s), u"in 1m");
        QCOMPARE(text(current, 3599s), u"in 59m");
        QCOMPARE(text(current, 3600s), u"in 1h 1m");
        QCOMPARE(text(current, 5400s), u"in 1h 30m");
        QCOMPARE(text(current, 86399s), u"in 23h 59m");
        QCOMPARE(text(current, 86400s), u"Wed 12:00 AM");
        QCOMPARE(text(current, 24h * 7 + 15h + 45min), u"Tue 3:45 PM");
    }

    void ageTexts() {
        QCOMPARE(ageText({}, m_midnight), u"never");
        const auto text = [this](std::chrono::seconds age) {
            return ageText(m_midnight - age, m_midnight);
        };
        QCOMPARE(text(-90s), u"just now");
        QCOMPARE(text(59s), u"just now");
        QCOMPARE(text(60s), u"1 min ago");
        QCOMPARE(text(3599s), u"59 min ago");
        QCOMPARE(text(3600s), u"1 hr ago");
        QCOMPARE(text(86399s), u"23 hr ago");
        QCOMPARE(text(86400s), u"1 d ago");
        QCOMPARE(text(86400s * 2000), u"2000 d ago");
    }
};

TALLYVANE_TEST(QuotaDisplayTest)
#include "quota_display_test.moc"
