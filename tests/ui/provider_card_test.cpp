#include "support/manual_clock.h"
#include "support/test_main.h"
#include "ui/dashboard/provider_card.h"
#include "ui/dashboard/refresh_toast_model.h"
#include "ui/dashboard/relative_times.h"

#include <cmath>

using namespace std::chrono_literals;
using namespace tallyvane;
using namespace Qt::StringLiterals;
using model::ProviderQuotaSnapshot;
using model::QuotaSyncState;
using ui::RefreshToastModel;

class ProviderCardTest : public tests::HermeticTest {
    Q_OBJECT

    const model::Timestamp m_now = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21};
    const model::WeekdayTimeFormat m_weekdayTime{"en_US", model::LocalZone(QTimeZone::utc())};

private Q_SLOTS:
    void rows() {
        using enum QuotaSyncState;
        using enum ui::QuotaLevel::Level;
        const auto check = [this](std::optional<double> used, QuotaSyncState state,
                                  const char* figure, double fraction, double opacity,
                                  ui::QuotaLevel::Level level, const char* resetText) {
            ProviderQuotaSnapshot entry{
                .provider = model::AIProvider::claude, .syncedAt = m_now - 2h, .syncState = state};
            if (used) {
                entry.week = {.usedPercent = *used, .resetsAt = m_now + 30min};
            }
            const ui::ProviderCard card = ui::providerCard(entry, m_now, m_weekdayTime);
            QCOMPARE(card.week.figure, QLatin1StringView(figure));
            QVERIFY2(std::abs(card.week.fraction - fraction) < 1e-9, figure);
            QCOMPARE(card.week.opacity, opacity);
            QVERIFY2(card.week.level == level, figure);
            QCOMPARE(card.week.resetText, QLatin1StringView(resetText));
            QCOMPARE(card.fiveHour.figure, u"--"_s);
            QVERIFY(card.isPending == (state == pending) && card.plan.isEmpty());
            QCOMPARE(card.age, state == pending ? u"From 2 hr ago"_s : QString());
        };
        check(75, current, "25%", 0.25, 1, Ample, "in 30m");
        check(75.1, current, "25%", 0.249, 1, Low, "in 30m");
        check(99.5, current, "1%", 0.005, 1, Low, "in 30m");
        check(130, current, "0%", 0, 1, Low, "in 30m");
        check(-5, current, "100%", 1, 1, Ample, "in 30m");
        check({}, current, "--", 0, 1, Unknown, "Reset unknown");
        check(10, pending, "90%", 0.9, 0.55, Unknown, "Sync pending");
        check({}, unavailable, "--", 0, 0.55, Unknown, "Not available");
        const auto card = ui::providerCard({.planName = u"Max 5x"_s}, m_now, m_weekdayTime);
        QCOMPARE(card.name, u"Codex"_s);
        QCOMPARE(card.plan, u"MAX 5X"_s);
    }

    void paces() {
        struct Row {
            double used;
            std::chrono::minutes left; ///< to the reset
            model::QuotaPeriod period;
            double even;
            const char* text;
            model::RecentRates recent;
        };
        const auto fiveHour = model::QuotaPeriod::fiveHour;
        const auto week = model::QuotaPeriod::week;
        const Row rows[] = {
            {80, 150min, fiveHour, 0.5,
             "At this pace it runs out at 12:37 AM, 1 hr before the reset"},
            {60, 150min, fiveHour, 0.5,
             "At this pace it runs out at 1:40 AM, 50 min before the reset"},
            {60, 24h * 7 / 2, week, 0.5,
             "At this pace it runs out at Mon 8:00 AM, 1 d before the reset"},
            {50, 150min, fiveHour, 0.5, "At this pace it lasts until the reset"},
            {100, 150min, fiveHour, 0.5, ""},
            {50, 300min, fiveHour, 1, ""},
            {50, -1min, fiveHour, -1, ""},
            {20,
             150min,
             fiveHour,
             0.5,
             "At the pace of the last hour it runs out at 2:00 AM, 30 min before the reset",
             {{{model::AIProvider::codex, fiveHour}, 200}}},
            {20,
             150min,
             fiveHour,
             0.5,
             "At the pace of the last hour it lasts until the reset",
             {{{model::AIProvider::codex, fiveHour}, 61}}},
            {20,
             150min,
             fiveHour,
             0.5,
             "At this pace it lasts until the reset",
             {{{model::AIProvider::codex, fiveHour}, 60}}},
            {20,
             24h * 7 / 2,
             week,
             0.5,
             "At the pace of the last day it runs out at Mon 7:12 PM, 16 hr before the reset",
             {{{model::AIProvider::codex, week}, 200}}}};
        for (const Row& row : rows) {
            ProviderQuotaSnapshot entry{.syncedAt = m_now, .syncState = QuotaSyncState::current};
            auto& quota = row.period == week ? entry.week : entry.fiveHour;
            quota = {.usedPercent = row.used, .resetsAt = m_now + row.left};
            const ui::ProviderCard card = ui::providerCard(entry, m_now, m_weekdayTime, row.recent);
            const ui::QuotaRow& shown = row.period == week ? card.week : card.fiveHour;
            QCOMPARE(shown.pace, QLatin1StringView(row.text));
            QCOMPARE(shown.evenFraction, row.even);
        }
    }

    /// Each wait ends as soon as the text has changed, and not a millisecond earlier.
    void textsChangeAfterTheirWait() {
        const ProviderQuotaSnapshot entry{.syncState = QuotaSyncState::current};
        for (const auto distance :
             {-90s, 0s, 59s, 61s, 119s, 3599s, 3600s, 7300s, 86399s, 86400s, 90000s, 200000s}) {
            const auto age = [&](model::Timestamp now) { return model::ageText(m_now, now); };
            const auto reset = [&](model::Timestamp now) {
                return model::resetText(m_now, entry, now, m_weekdayTime);
            };
            const auto changesAfter = [](const auto& text, model::Timestamp now, auto wait) {
                return text(now + wait) != text(now) && text(now + wait - 1ms) == text(now);
            };
            const auto later = m_now + distance;
            QVERIFY(changesAfter(age, later, *ui::untilAgeTextChanges(m_now, later)));
            const auto earlier = m_now - distance;
            const auto wait = ui::untilResetTextChanges(m_now, earlier);
            QCOMPARE(wait.has_value(), distance > 0s);
            QVERIFY(!wait || changesAfter(reset, earlier, *wait));
        }
        QVERIFY(!ui::untilAgeTextChanges({}, m_now));
        QVERIFY(!ui::untilResetTextChanges({}, m_now));
    }

    void toast() {
        using enum RefreshToastModel::State;
        tests::ManualClock clock(m_now);
        RefreshToastModel toast(clock);
        QList<int> states;
        connect(&toast, &RefreshToastModel::stateChanged, [&] { states << toast.state(); });
        toast.setRefreshing(false);
        toast.setRefreshing(true);
        toast.dismiss();
        toast.setRefreshing(false);
        toast.setRefreshing(true); // before the toast is hidden
        clock.advance(1h);
        toast.setRefreshing(false);
        clock.advance(1699ms);
        QCOMPARE(states, (QList<int>{Refreshing, Refreshed, Refreshing, Refreshed}));
        clock.advance(1ms);
        QCOMPARE(toast.state(), Hidden);
    }
};

TALLYVANE_TEST(ProviderCardTest)
#include "provider_card_test.moc"
