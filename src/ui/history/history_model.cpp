#include "ui/history/history_model.h"

#include "history/calendar_days.h"
#include "model/quota_display.h"
#include "ui/style/colour.h"

#include <map>
#include <set>

namespace tallyvane::ui {

using history::ChartPoint;
using history::HistoryGranularity;
using history::HistoryMetric;
using std::chrono::duration;

namespace {

constexpr double dimmedOpacity = 0.28;
constexpr double barShare = 0.62; // of a bucket's width

/// The usual length of a bucket.
model::Timestamp::duration bucketLength(HistoryGranularity granularity) {
    using std::chrono::days;
    return granularity == HistoryGranularity::daily ? days{1} : days{30};
}

} // namespace

HistoryModel::HistoryModel(const core::AppModel& model, const platform::Clock& clock,
                           const history::Calendar& calendar, const model::LocaleLabels& labels,
                           QObject* parent)
    : QObject(parent), m_model(model), m_clock(clock), m_calendar(calendar), m_labels(labels) {
    connect(&model, &core::AppModel::historyChanged, this, &HistoryModel::update);
    update();
}

void HistoryModel::setMetric(int metric) {
    m_metric = static_cast<HistoryMetric>(metric);
    update();
}

void HistoryModel::setGranularity(int granularity) {
    m_granularity = static_cast<HistoryGranularity>(granularity);
    m_hoveredDate.reset();
    update();
}

QString HistoryModel::subtitle() const {
    return m_metric == HistoryMetric::percent ? tr("% of quota used") : tr("Estimated tokens used");
}

/// The plot begins half a bucket before the first mark, so that a bar centred there is whole.
double HistoryModel::position(model::Timestamp moment) const {
    const auto start =
        history::startOfDay(m_domain.start, m_calendar.zone) - bucketLength(m_granularity) / 2;
    const auto end = history::startOfDay(m_domain.end, m_calendar.zone);
    return duration<double>(moment - start) / duration<double>(end - start);
}

double HistoryModel::centre(QDate date) const {
    return position(history::startOfDay(date, m_calendar.zone));
}

void HistoryModel::update() {
    const model::Timestamp now = m_clock.now();
    m_domain = history::xDomain(m_granularity, m_calendar, now);
    m_points = history::chartPoints(m_model.history(), m_granularity, m_calendar, now);
    std::erase_if(m_points, [this](const ChartPoint& point) {
        return point.date < m_domain.start || point.date >= m_domain.end;
    });
    showMarks();
    showSegments();
    Q_EMIT changed();
    const bool isStillThere =
        m_hoveredDate &&
        std::ranges::find(m_points, *m_hoveredDate, &ChartPoint::date) != m_points.end();
    setHoveredDate(isStillThere ? m_hoveredDate : std::nullopt);
}

void HistoryModel::showMarks() {
    std::map<QDate, double> heights;
    double tallest = 0;
    for (const ChartPoint& point : m_points) {
        double& total = heights[point.date];
        total += std::max(history::height(point, m_metric), 0.0);
        tallest = std::max(tallest, total);
    }
    const auto values = history::axisValues(tallest);
    m_top = values.back();
    std::vector<AxisMark> valueMarks;
    for (const double value : values) {
        const QString label = m_metric == HistoryMetric::tokens
                                  ? m_labels.compactNumber(std::llround(value))
                                  : m_labels.number(value);
        valueMarks.push_back({.position = value / m_top, .label = label});
    }
    m_valueMarks.setRecords(std::move(valueMarks));

    std::vector<AxisMark> dateMarks;
    for (const QDate date : history::axisDates(m_granularity, m_domain)) {
        dateMarks.push_back({.position = centre(date), .label = m_labels.dayAndMonth(date)});
    }
    m_dateMarks.setRecords(std::move(dateMarks));
}

void HistoryModel::showSegments() {
    const auto first = history::startOfDay(m_domain.start, m_calendar.zone);
    const double thickness =
        barShare * (position(first + bucketLength(m_granularity)) - position(first));
    std::vector<ChartSegment> segments;
    double base = 0;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const ChartPoint& point = m_points[i];
        if (i > 0 && m_points[i - 1].date != point.date) {
            base = 0;
        }
        const double extent = std::max(history::height(point, m_metric), 0.0) / m_top;
        segments.push_back(
            {.centre = centre(point.date),
             .thickness = thickness,
             .base = base,
             .extent = extent,
             .colour = toColour(model::accentColour(point.provider)),
             .strength = m_hoveredDate.value_or(point.date) == point.date ? 1 : dimmedOpacity});
        base += extent;
    }
    m_segments.setRecords(std::move(segments));
}

double HistoryModel::hoveredCentre() const {
    return m_hoveredDate ? centre(*m_hoveredDate) : 0;
}

QString HistoryModel::hoveredTitle() const {
    if (!m_hoveredDate) {
        return {};
    }
    return m_granularity == HistoryGranularity::daily ? m_labels.fullDay(*m_hoveredDate)
                                                      : m_labels.monthAndYear(*m_hoveredDate);
}

QString HistoryModel::hoveredText() const {
    QStringList parts{hoveredTitle()};
    for (const TooltipLine& line : m_hoveredLines.records()) {
        parts << line.name + u' ' + line.value;
    }
    return isHovered() ? parts.join(QStringLiteral(", ")) : QString();
}

QString HistoryModel::valueText(const ChartPoint& point) const {
    return m_metric == HistoryMetric::percent
               ? QString::number(point.quota, 'f', 1) + u'%'
               : tr("%1 tokens").arg(m_labels.compactNumber(point.tokens));
}

void HistoryModel::hover(double position) {
    const auto start = history::startOfDay(m_domain.start, m_calendar.zone);
    const auto end = history::startOfDay(m_domain.end, m_calendar.zone);
    const double from = centre(m_domain.start);
    const auto reach = duration<double>(end - start) * ((position - from) / (1 - from));
    setHoveredDate(history::nearestBucket(
        m_points, m_calendar, start + std::chrono::round<model::Timestamp::duration>(reach)));
}

void HistoryModel::leave() {
    setHoveredDate(std::nullopt);
}

void HistoryModel::step(int by) {
    std::set<QDate> dates;
    for (const ChartPoint& point : m_points) {
        dates.insert(point.date);
    }
    if (dates.empty()) {
        return;
    }
    auto at = m_hoveredDate ? dates.find(*m_hoveredDate) : dates.end();
    if (at == dates.end()) {
        setHoveredDate(*dates.rbegin());
        return;
    }
    for (; by > 0 && std::next(at) != dates.end(); --by) {
        ++at;
    }
    for (; by < 0 && at != dates.begin(); ++by) {
        --at;
    }
    setHoveredDate(*at);
}

void HistoryModel::setHoveredDate(std::optional<QDate> date) {
    m_hoveredDate = date;
    std::vector<TooltipLine> lines;
    for (const ChartPoint& point : m_points) {
        if (date == point.date) {
            lines.push_back({.name = model::displayName(point.provider),
                             .value = valueText(point),
                             .colour = toColour(model::accentColour(point.provider))});
        }
    }
    m_hoveredLines.setRecords(std::move(lines));
    showSegments();
    Q_EMIT hoverChanged();
}

} // namespace tallyvane::ui
