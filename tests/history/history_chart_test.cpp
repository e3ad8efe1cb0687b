#include "history/calendar_days.h"
#include "history/heatmap.h"
#include "support/test_main.h"

#include <limits>

using namespace std::chrono_literals;
using namespace tallyvane;
using enum history::HistoryGranularity;
using enum model::AIProvider;

class HistoryChartTest : public tests::HermeticTest {
    Q_OBJECT

    // A Saturday; the clocks went back on November 1st.
    const history::Calendar m_calendar{.zone = model::LocalZone(QTimeZone("America/New_York")),
                                       .firstWeekday = Qt::Sunday};
    const QDate m_today{2026, 11, 21};
    const model::Timestamp m_now = at(m_today) + 23h + 59min;

    [[nodiscard]] model::Timestamp at(QDate day) const {
        return history::startOfDay(day, m_calendar.zone);
    }

    [[nodiscard]] history::UsageHistoryPoint point(QDate day, model::AIProvider provider,
                                                   double quota, std::int64_t tokens) const {
        return {at(day), provider, quota, tokens};
    }

private Q_SLOTS:
    void segments() {
        const QDate first = m_today.addDays(-29);
        const QDate month{2026, 10, 1};
        history::UsageHistory history{
            .points = {point(m_today, claude, 1, 10), point(first, codex, 2, 20),
                       point(first.addDays(-1), codex, 4, 40), point(m_today, codex, 8, 80),
                       point(m_today, claude, 16, 160)}};
        history.points[3].date += 23h;
        const std::vector<history::ChartPoint> days{
            {first, codex, 2, 20}, {m_today, codex, 8, 80}, {m_today, claude, 17, 170}};
        QCOMPARE(history::chartPoints(history, daily, m_calendar, m_now), days);
        const std::vector<history::ChartPoint> months{{month, codex, 6, 60},
                                                      {month.addMonths(1), codex, 8, 80},
                                                      {month.addMonths(1), claude, 17, 170}};
        QCOMPARE(history::chartPoints(history, monthly, m_calendar, m_now), months);
        QVERIFY(history::chartPoints({}, daily, m_calendar, m_now).empty());

        history.points = {point(m_today, codex, 0, std::numeric_limits<std::int64_t>::max()),
                          point(m_today, codex, 0, 1)};
        QCOMPARE(history::chartPoints(history, daily, m_calendar, m_now)[0].tokens,
                 std::numeric_limits<std::int64_t>::max());
    }

    void axes() {
        const auto days = history::xDomain(daily, m_calendar, m_now);
        QCOMPARE(days, (history::DateDomain{{2026, 10, 23}, {2026, 11, 24}}));
        const std::vector<QDate> marks{
            {2026, 10, 23}, {2026, 10, 30}, {2026, 11, 6}, {2026, 11, 13}, {2026, 11, 20}};
        QCOMPARE(history::axisDates(daily, days), marks);
        const auto months = history::xDomain(monthly, m_calendar, at({2026, 3, 31}));
        QCOMPARE(months, (history::DateDomain{{2025, 10, 1}, {2026, 4, 1}}));
        QCOMPARE(history::axisDates(monthly, months).back(), QDate(2026, 3, 1));
    }

    void axisValues() {
        const std::pair<double, std::vector<double>> rows[] = {
            {0, {0, 0.5, 1}},
            {100, {0, 50, 100}},
            {100.1, {0, 50, 100, 150}},
            {4, {0, 1, 2, 3, 4}},
            {0.3, {0, 0.1, 0.2, 0.1 * 3}},
            {1'764'000, {0, 500'000, 1e6, 1.5e6, 2e6}}};
        for (const auto& [maximum, values] : rows) {
            QCOMPARE(history::axisValues(maximum), values);
        }
        QVERIFY(std::isfinite(history::axisValues(std::numeric_limits<double>::infinity()).back()));
    }

    void nearest() {
        const std::vector<history::ChartPoint> points{{.date = {2026, 11, 1}},
                                                      {.date = {2026, 11, 2}}};
        const auto near = [&](model::Timestamp moment) {
            return history::nearestBucket(points, m_calendar, moment);
        };
        QCOMPARE(near(at({2026, 1, 1})), QDate(2026, 11, 1));
        QCOMPARE(near(at({2026, 11, 1}) + 12h + 30min), QDate(2026, 11, 1));
        QCOMPARE(near(at({2026, 11, 1}) + 12h + 31min), QDate(2026, 11, 2));
        QCOMPARE(history::nearestBucket({}, m_calendar, m_now), std::optional<QDate>());
    }

    void heatmapGrid() {
        // Weeks, first weekday, first day, number of future days
        const std::tuple<int, Qt::DayOfWeek, QDate, int> rows[] = {
            {0, Qt::Monday, {}, 0},
            {1, Qt::Sunday, QDate(2026, 11, 15), 0},
            {2, Qt::Saturday, QDate(2026, 11, 14), 6},
            {26, Qt::Monday, QDate(2026, 5, 25), 1}};
        for (auto [weeks, firstWeekday, day, futureCells] : rows) {
            const auto columns = history::heatmapColumns(
                weeks, {.zone = m_calendar.zone, .firstWeekday = firstWeekday}, m_now);
            QCOMPARE(columns.size(), static_cast<std::size_t>(weeks));
            for (const history::WeekColumn& column : columns) {
                for (const history::DayCell& cell : column) {
                    QCOMPARE(cell, (history::DayCell{day, day > m_today}));
                    futureCells -= cell.isFuture ? 1 : 0;
                    day = day.addDays(1);
                }
            }
            QCOMPARE(futureCells, 0);
        }
    }

    void heatmapCells() {
        constexpr auto total = history::HeatmapFilter::total;
        // East of UTC a day starts on the UTC day before.
        const history::Calendar calendar{.zone = model::LocalZone(QTimeZone("Asia/Tokyo"))};
        const auto midnight = history::startOfDay(m_today, calendar.zone);
        const history::UsageHistory history{
            .points = {{midnight, model::AIProvider::codex, 0, 3000},
                       {midnight, model::AIProvider::claude, 0, 1000},
                       {midnight - 24h, model::AIProvider::codex, 0, 1000}}};
        const auto both = history::dayTotals(history, total, calendar);
        QCOMPARE(both.maximum, 4000);
        const std::map<QDate, std::int64_t> days{{m_today.addDays(-1), 1000}, {m_today, 4000}};
        QCOMPARE(both.byDay, days);
        const auto one = history::dayTotals(history, history::HeatmapFilter::claude, calendar);
        QCOMPARE(one.byDay, (std::map<QDate, std::int64_t>{{m_today, 1000}}));
        QCOMPARE(one.maximum, 1000);
        QCOMPARE(history::dayTotals({}, total, calendar).maximum, 1);
        QCOMPARE(history::heatmapColumns(1, calendar, midnight)[0][5],
                 (history::DayCell{m_today, false}));

        using enum model::ColourScheme;
        const auto cell = [&](QDate day, model::ColourScheme scheme) {
            return history::cellColour(day, one.byDay, one.maximum, history::HeatmapFilter::claude,
                                       scheme);
        };
        QCOMPARE(cell({2026, 11, 2}, light).opacity, 0.16);
        QCOMPARE(cell({2026, 11, 2}, dark).opacity, 0.4);
        QCOMPARE(cell(m_today, dark).opacity, 1.0);
        QCOMPARE(cell(m_today, dark).colour.red, 0.91);

        const std::pair<std::int64_t, int> rows[] = {{-5, 0},   {0, 0},    {1, 1},    {999, 1},
                                                     {1000, 2}, {1999, 2}, {2000, 3}, {2999, 3},
                                                     {3000, 4}, {4000, 4}};
        for (const auto& [tokens, level] : rows) {
            QCOMPARE(history::level(tokens, 4000), level);
        }
        QCOMPARE(history::level(1, 1), 4);
    }
};

TALLYVANE_TEST(HistoryChartTest)
#include "history_chart_test.moc"
