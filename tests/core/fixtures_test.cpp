#include "core/fixtures.h"
#include "history/calendar_days.h"
#include "support/test_main.h"

#include <set>

using namespace std::chrono_literals;
using namespace tallyvane;

class FixturesTest : public tests::HermeticTest {
    Q_OBJECT

    const model::LocalZone m_zone{QTimeZone("Europe/Berlin")};
    // The clocks change within both the next days and the last ones.
    const model::Timestamp m_now = std::chrono::sys_days{std::chrono::year{2026} / 3 / 28} + 20h;

private Q_SLOTS:
    void snapshot() {
        const model::QuotaSnapshot snapshot = core::fixtureSnapshot(m_now, m_zone);
        QCOMPARE(snapshot.providers.size(), 2U);
        const auto& codex = snapshot.providers[0];
        QCOMPARE(codex.week->usedPercent, 68.0);
        QCOMPARE(codex.week->resetsAt, m_now + 47h);
        QCOMPARE(codex.fiveHour->resetsAt, m_now + 134min);
        const auto& claude = snapshot.providers[1];
        QCOMPARE(claude.planName, QStringLiteral("Pro"));
        QCOMPARE(claude.fiveHour->usedPercent, 81.0);
        QCOMPARE(claude.syncedAt, m_now - 2min);
    }

    void history() {
        const history::UsageHistory history = core::fixtureHistory(m_now, m_zone);
        QCOMPARE(history.points.size(), 28U);
        std::set<QDate> days;
        for (const history::UsageHistoryPoint& point : history.points) {
            days.insert(history::localDay(point.date, m_zone));
        }
        QCOMPARE(days.size(), 14U);
        const auto& day3 = history.points[7];
        QCOMPARE(day3.estimatedQuotaConsumed, 4.0);
        QCOMPARE(day3.estimatedLocalTokens, 336'000);
        const auto& day13 = history.points[26];
        QCOMPARE(day13.estimatedQuotaConsumed, 6.0);
        QCOMPARE(day13.estimatedLocalTokens, 1'680'000);
    }
};

TALLYVANE_TEST_MAIN(FixturesTest)
#include "fixtures_test.moc"
