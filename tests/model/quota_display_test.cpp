#include "model/quota_display.h"
#include "support/test_main.h"

using namespace std::chrono_literals;
using namespace tallyvane::model;

class QuotaDisplayTest : public tallyvane::tests::HermeticTest {
    Q_OBJECT

private Q_SLOTS:
    void resetTexts() {
        using enum QuotaSyncState;
        struct Row {
            const char* expected;
            QuotaSyncState state;
            std::optional<int> secondsLeft;
            const char* message = nullptr;
        };
        const Row rows[] = {{"Sync pending", pending, 60},
                            {"Rate limited", pending, 60, "Rate limited"},
                            {"Not available", unavailable, 60, "Rate limited"},
                            {"Reset unknown", current, {}, "Rate limited"},
                            {"Sync pending", current, 0},
                            {"Rate limited", current, -5, "Rate limited"},
                            {"in 1m", current, 1},
                            {"in 1m", current, 119},
                            {"in 59m", current, 3599},
                            {"in 1h 1m", current, 3600},
                            {"in 1h 30m", current, 5400},
                            {"in 23h 59m", current, 86399},
                            {"Wed 12:00 AM", current, 86400},
                            {"Tue 3:45 PM", current, 7 * 86400 + 15 * 3600 + 45 * 60}};
        const WeekdayTimeFormat weekdayTime("en_US", LocalZone(QTimeZone::utc()));
        for (const auto& [expected, state, secondsLeft, message] : rows) {
            ProviderQuotaSnapshot entry{.syncState = state};
            if (message != nullptr) {
                entry.statusMessage = QString::fromLatin1(message);
            }
            std::optional<Timestamp> resetsAt;
            if (secondsLeft) {
                resetsAt = m_tuesdayMidnight + std::chrono::seconds(*secondsLeft);
            }
            QCOMPARE(resetText(resetsAt, entry, m_tuesdayMidnight, weekdayTime),
                     QString::fromLatin1(expected));
        }
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

TALLYVANE_TEST(QuotaDisplayTest)
#include "quota_display_test.moc"
