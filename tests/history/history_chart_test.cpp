#include "history/calendar_days.h"
#include "history/heatmap.h"
#include "support/test_main.h"

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
        using Points = std::vector<history::ChartPoint>;
        QCOMPARE(
            history::chartPoints(history, daily, m_calendar, m_now),
            (Points{{first, codex, 2, 20}, {m_today, codex, 8, 80}, {m_today, claude, 17, 170}}));
        const QDate next = month.addMonths(1);
        QCOMPARE(history::chartPoints(history, monthly, m_calendar, m_now),
                 (Points{{month, codex, 6, 60}, {next, codex, 8, 80}, {next, claude, 17, 170}}));
        QVERIFY(history::chartPoints({}, daily, m_calendar, m_now).empty());
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
        using Values = std::vector<double>;
        const auto axisValues = [](double maximum) {
            return history::axisValues(maximum, history::HistoryMetric::percent);
        };
        QCOMPARE(axisValues(0), Values{0});
        QCOMPARE(axisValues(0.02), (Values{0, 0.01, 0.02}));
        QCOMPARE(history::axisValues(2, history::HistoryMetric::tokens), (Values{0, 1, 2}));
        QCOMPARE(axisValues(100), (Values{0, 50, 100}));
        QCOMPARE(axisValues(100.1), (Values{0, 50, 100, 150}));
        QCOMPARE(axisValues(0.1 + 0.2), (Values{0, 0.1, 0.2, 0.1 * 3}));
        QCOMPARE(axisValues(1'764'000), (Values{0, 500'000, 1e6, 1.5e6, 2e6}));
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
        using Days = std::map<QDate, std::int64_t>;
        const auto both = history::dayTotals(history, total, calendar);
        QCOMPARE(both.byDay, (Days{{m_today.addDays(-1), 1000}, {m_today, 4000}}));
        QCOMPARE(both.maximum, 4000);
        const auto one = history::dayTotals(history, history::HeatmapFilter::claude, calendar);
        QCOMPARE(one.byDay, (Days{{m_today, 1000}}));
        QCOMPARE(one.maximum, 1000);
        QCOMPARE(history::dayTotals({}, total, calendar).maximum, 1);
        QCOMPARE(history::heatmapColumns(1, calendar, midnight)[0][5],
                 (history::DayCell{m_today, false}));

        const auto cell = [&](QDate day, model::ColourScheme scheme) {
            return history::cellColour(day, one.byDay, one.maximum, history::HeatmapFilter::claude,
                                       scheme);
        };
        QCOMPARE(cell({2026, 11, 2}, model::ColourScheme::light).opacity, 0.16);
        QCOMPARE(cell({2026, 11, 2}, model::ColourScheme::dark).opacity, 0.4);
        const history::CellColour today = cell(m_today, model::ColourScheme::dark);
        QCOMPARE(std::pair(today.opacity, today.colour.red), std::pair(1.0, 0.91));

        QList<int> levels{history::level(1, 1)};
        for (const int tokens : {-5, 0, 1, 999, 1000, 1999, 2000, 2999, 3000, 4000}) {
            levels << history::level(tokens, 4000);
        }
        QCOMPARE(levels, (QList{4, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4}));
    }
};

TALLYVANE_TEST(HistoryChartTest)
#include "history_chart_test.moc"
