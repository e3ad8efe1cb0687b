#include "model/quota_display.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane::model;

class QuotaDisplayTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void resetTexts_data() {
        QTest::addColumn<QuotaSyncState>("state");
        QTest::addColumn<std::optional<int>>("secondsLeft");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("expected");
        using enum QuotaSyncState;
        const auto row = [](const char* expected, QuotaSyncState state, std::optional<int> left,
                            const char* message = "") {
            QTest::addRow("%s, %d s, \"%s\"", expected, left.value_or(-1), message)
                << state << left << QString::fromLatin1(message) << QString::fromLatin1(expected);
        };
        row("Sync pending", pending, 60);
        row("Rate limited", pending, 60, "Rate limited");
        row("Not available", unavailable, 60, "Rate limited");
        row("Reset unknown", current, {}, "Rate limited");
        row("Sync pending", current, 0);
        row("Rate limited", current, -5, "Rate limited");
        row("in 1m", current, 1);
        row("in 1m", current, 119);
        row("in 45m", current, 2700);
        row("in 59m", current, 3599);
        row("in 1h 1m", current, 3600);
        row("in 1h 30m", current, 5400);
        row("in 2h 1m", current, 7200);
        row("in 23h 59m", current, 86399);
        row("Wed 12:00 AM", current, 86400);
        row("Tue 3:45 PM", current, 7 * 86400 + 15 * 3600 + 45 * 60);
    }

    void resetTexts() {
        QFETCH(QuotaSyncState, state);
        QFETCH(std::optional<int>, secondsLeft);
        QFETCH(QString, message);
        QFETCH(QString, expected);
        ProviderQuotaSnapshot entry{.syncState = state};
        if (!message.isEmpty()) {
            entry.statusMessage = message;
        }
        std::optional<Timestamp> resetsAt;
        if (secondsLeft) {
            resetsAt = m_tuesdayMidnight + std::chrono::seconds(*secondsLeft);
        }
        QCOMPARE(resetText(resetsAt, entry, m_tuesdayMidnight,
                           WeekdayTimeFormat("en_US", LocalZone(QTimeZone::utc()))),
                 expected);
    }

    void weekdayFollowsLocaleAndZone() {
        const Timestamp afternoon = m_tuesdayMidnight + 15h + 45min;
        const auto text = [&](const char* locale, const char* zone) {
            return WeekdayTimeFormat(locale, LocalZone(QTimeZone(zone))).format(afternoon);
        };
        QCOMPARE(text("de_DE.UTF-8", "UTC"), QStringLiteral("Di., 15:45"));
        QCOMPARE(text("en_US.UTF-8", "Asia/Kolkata"), QStringLiteral("Tue 9:15 PM"));
        QCOMPARE(text("C.UTF-8", "Pacific/Auckland"), QStringLiteral("Wed 04:45"));
        QCOMPARE(text("no such locale", "UTC"), QStringLiteral("Tue 3:45 PM"));
    }

    void ageTexts() {
        const Timestamp now = m_tuesdayMidnight;
        QCOMPARE(ageText({}, now), QStringLiteral("never"));
        const std::pair<std::chrono::seconds, const char*> rows[] = {
            {-90s, "just now"},  {59s, "just now"},
            {60s, "1 min ago"},  {3599s, "59 min ago"},
            {3600s, "1 hr ago"}, {86399s, "23 hr ago"},
            {86400s, "1 d ago"}, {86400s * 2000, "2000 d ago"}};
        for (const auto& [age, expected] : rows) {
            QCOMPARE(ageText(now - age, now), QString::fromLatin1(expected));
        }
    }

private:
    const Timestamp m_tuesdayMidnight =
        std::chrono::sys_days{std::chrono::year{2025} / std::chrono::January / 28};
};

TALLYVANE_TEST_MAIN(QuotaDisplayTest)
#include "quota_display_test.moc"
