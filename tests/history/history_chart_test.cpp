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
        return {.date = at(day),
                .provider = provider,
                .estimatedQuotaConsumed = quota,
                .estimatedLocalTokens = tokens};
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

    void axisValues_data() {
        QTest::addColumn<double>("maximum");
        QTest::addColumn<std::vector<double>>("values");
        const auto row = [](const char* name, double maximum, const std::vector<double>& values) {
            QTest::newRow(name) << maximum << values;
        };
        row("nothing", 0, {0, 0.5, 1});
        row("reached exactly", 100, {0, 50, 100});
        row("a little above", 100.1, {0, 50, 100, 150});
        row("a step of one", 4, {0, 1, 2, 3, 4});
        row("not a sum of tenths", 0.3, {0, 0.1, 0.2, 0.1 * 3});
        row("tokens", 1'764'000, {0, 500'000, 1e6, 1.5e6, 2e6});
    }

    void axisValues() {
        QFETCH(double, maximum);
        QFETCH(std::vector<double>, values);
        const auto actual = history::axisValues(maximum);
        QCOMPARE(actual.size(), values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            QCOMPARE(actual[i], values[i]);
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

    void heatmapGrid_data() {
        QTest::addColumn<int>("weeks");
        QTest::addColumn<Qt::DayOfWeek>("firstWeekday");
        QTest::addColumn<QDate>("first");
        QTest::addColumn<int>("future");
        QTest::newRow("none") << 0 << Qt::Monday << QDate() << 0;
        QTest::newRow("ends today") << 1 << Qt::Sunday << QDate(2026, 11, 15) << 0;
        QTest::newRow("starts today") << 2 << Qt::Saturday << QDate(2026, 11, 14) << 6;
        QTest::newRow("Monday") << 26 << Qt::Monday << QDate(2026, 5, 25) << 1;
    }

    void heatmapGrid() {
        QFETCH(int, weeks);
        QFETCH(Qt::DayOfWeek, firstWeekday);
        QFETCH(QDate, first);
        QFETCH(int, future);
        const auto columns = history::heatmapColumns(
            weeks, {.zone = m_calendar.zone, .firstWeekday = firstWeekday}, m_now);
        QCOMPARE(columns.size(), static_cast<std::size_t>(weeks));
        int futureCells = 0;
        for (const history::WeekColumn& column : columns) {
            for (const history::DayCell& cell : column) {
                QCOMPARE(cell.day, first);
                QCOMPARE(cell.isFuture, cell.day > m_today);
                futureCells += cell.isFuture ? 1 : 0;
                first = first.addDays(1);
            }
        }
        QCOMPARE(futureCells, future);
    }

    void heatmapTotals() {
        const history::UsageHistory history{.points = {point(m_today, codex, 0, 3000),
                                                       point(m_today, claude, 0, 1000),
                                                       point({2026, 11, 2}, codex, 0, 1000)}};
        const auto both = history::dayTotals(history, history::HeatmapFilter::total, m_calendar);
        QCOMPARE(both.maximum, 4000);
        QCOMPARE(both.byDay.at({2026, 11, 2}), 1000);
        const auto one = history::dayTotals(history, history::HeatmapFilter::claude, m_calendar);
        QCOMPARE(one.byDay.size(), 1U);
        QCOMPARE(one.maximum, 1000);
        QCOMPARE(history::dayTotals({}, history::HeatmapFilter::total, m_calendar).maximum, 1);
        const auto cell = [&](QDate day, model::ColourScheme scheme) {
            return history::cellColour(day, one.byDay, one.maximum, history::HeatmapFilter::claude,
                                       scheme);
        };
        QCOMPARE(cell({2026, 11, 2}, model::ColourScheme::light).opacity, 0.16);
        QCOMPARE(cell({2026, 11, 2}, model::ColourScheme::dark).opacity, 0.4);
        QCOMPARE(cell(m_today, model::ColourScheme::dark).opacity, 1.0);
        QCOMPARE(cell(m_today, model::ColourScheme::dark).colour.red, 0.91);
    }

    void levels() {
        const std::pair<std::int64_t, int> rows[] = {{-5, 0},   {0, 0},    {1, 1},    {999, 1},
                                                     {1000, 2}, {1999, 2}, {2000, 3}, {2999, 3},
                                                     {3000, 4}, {4000, 4}};
        for (const auto& [total, expected] : rows) {
            QCOMPARE(history::level(total, 4000), expected);
        }
        QCOMPARE(history::level(1, 1), 4);
    }
};

TALLYVANE_TEST_MAIN(HistoryChartTest)
#include "history_chart_test.moc"
