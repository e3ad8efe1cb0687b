#include "support/manual_clock.h"
#include "support/test_main.h"
#include "ui/dashboard/provider_card.h"
#include "ui/dashboard/refresh_toast_model.h"
#include "ui/dashboard/relative_times.h"

#include <QtTest/QSignalSpy>

#include <cmath>

using namespace std::chrono_literals;
using namespace tallyvane;
using model::QuotaSyncState;
using ui::RefreshToastModel;

class ProviderCardTest : public tests::HermeticTest {
    Q_OBJECT

    const model::Timestamp m_now = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21};
    const model::WeekdayTimeFormat m_weekdayTime{"en_US", model::LocalZone(QTimeZone::utc())};

private Q_SLOTS:
    void rows_data() {
        QTest::addColumn<std::optional<double>>("used");
        QTest::addColumn<QuotaSyncState>("state");
        QTest::addColumn<QString>("figure");
        QTest::addColumn<double>("fraction");
        QTest::addColumn<double>("opacity");
        QTest::addColumn<ui::QuotaLevel::Level>("level");
        QTest::addColumn<QString>("resetText");
        using enum QuotaSyncState;
        using Used = std::optional<double>;
        const auto row = [](const char* name, Used used, QuotaSyncState state, const char* figure,
                            double fraction, double opacity, ui::QuotaLevel::Level level,
                            const char* resetText) {
            QTest::newRow(name) << used << state << QString::fromLatin1(figure) << fraction
                                << opacity << level << QString::fromLatin1(resetText);
        };
        row("at the threshold", 75, current, "25%", 0.25, 1, ui::QuotaLevel::Ample, "in 30m");
        row("below it", 75.1, current, "25%", 0.249, 1, ui::QuotaLevel::Low, "in 30m");
        row("half rounds up", 99.5, current, "1%", 0.005, 1, ui::QuotaLevel::Low, "in 30m");
        row("more than all", 130, current, "0%", 0, 1, ui::QuotaLevel::Low, "in 30m");
        row("absent", {}, current, "--", 0, 1, ui::QuotaLevel::Unknown, "Reset unknown");
        row("pending", 10, pending, "90%", 0.9, 0.55, ui::QuotaLevel::Unknown, "Sync pending");
        row("unavailable", {}, unavailable, "--", 0, 0.55, ui::QuotaLevel::Unknown,
            "Not available");
    }

    void rows() {
        QFETCH(std::optional<double>, used);
        QFETCH(QuotaSyncState, state);
        model::ProviderQuotaSnapshot entry{.provider = model::AIProvider::claude,
                                           .syncState = state};
        if (used) {
            entry.week =
                model::QuotaWindowSnapshot{.usedPercent = *used, .resetsAt = m_now + 30min};
        }
        const ui::ProviderCard card = ui::providerCard(entry, m_now, m_weekdayTime);
        QTEST(card.week.figure, "figure");
        QFETCH(double, fraction);
        QVERIFY(std::abs(card.week.fraction - fraction) < 1e-9);
        QTEST(card.week.opacity, "opacity");
        QTEST(card.week.level, "level");
        QTEST(card.week.resetText, "resetText");
        QCOMPARE(card.fiveHour.figure, QStringLiteral("--"));
        QCOMPARE(card.isPending, state == QuotaSyncState::pending);
        QCOMPARE(card.name, QStringLiteral("Claude"));
        QVERIFY(card.plan.isEmpty());
        entry.planName = QStringLiteral("Max 5x");
        QCOMPARE(ui::providerCard(entry, m_now, m_weekdayTime).plan, QStringLiteral("MAX 5X"));
    }

    /// Each wait ends when the text has just changed, and not a millisecond before.
    void textsChangeWhenTold() {
        const model::ProviderQuotaSnapshot entry{.syncState = QuotaSyncState::current};
        for (const auto distance :
             {-90s, 0s, 59s, 61s, 119s, 3599s, 3600s, 7300s, 86399s, 86400s, 90000s, 200000s}) {
            const auto age = [&](model::Timestamp now) { return model::ageText(m_now, now); };
            const auto later = m_now + distance;
            const auto ageWait = *ui::untilAgeTextChanges(m_now, later);
            QVERIFY(age(later + ageWait) != age(later));
            QCOMPARE(age(later + ageWait - 1ms), age(later));

            const auto reset = [&](model::Timestamp now) {
                return model::resetText(m_now, entry, now, m_weekdayTime);
            };
            const auto earlier = m_now - distance;
            const auto resetWait = ui::untilResetTextChanges(m_now, earlier);
            QCOMPARE(resetWait.has_value(), distance > 0s);
            if (resetWait) {
                QVERIFY(reset(earlier + *resetWait) != reset(earlier));
                QCOMPARE(reset(earlier + *resetWait - 1ms), reset(earlier));
            }
        }
        QVERIFY(!ui::untilAgeTextChanges({}, m_now));
        QVERIFY(!ui::untilResetTextChanges({}, m_now));
    }

    void toast() {
        tests::ManualClock clock(m_now);
        RefreshToastModel toast(clock);
        const QSignalSpy changes(&toast, &RefreshToastModel::stateChanged);
        toast.setRefreshing(false);
        QCOMPARE(toast.state(), RefreshToastModel::Hidden);
        toast.setRefreshing(true);
        toast.dismiss();
        clock.advance(1h);
        QCOMPARE(toast.state(), RefreshToastModel::Refreshing);
        toast.setRefreshing(false);
        clock.advance(1699ms);
        QCOMPARE(toast.state(), RefreshToastModel::Refreshed);
        clock.advance(1ms);
        QCOMPARE(toast.state(), RefreshToastModel::Hidden);
        QCOMPARE(changes.count(), 3);

        toast.setRefreshing(true);
        toast.setRefreshing(false);
        toast.setRefreshing(true);
        clock.advance(2s);
        QCOMPARE(toast.state(), RefreshToastModel::Refreshing);
        toast.setRefreshing(false);
        toast.dismiss();
        QCOMPARE(toast.state(), RefreshToastModel::Hidden);
        QCOMPARE(clock.pendingAlarms(), 0U);
    }
};

TALLYVANE_TEST_MAIN(ProviderCardTest)
#include "provider_card_test.moc"
