#include "ui/history/history_model.h"

#include "history/calendar_days.h"
#include "history/history_csv.h"
#include "model/quota_display.h"
#include "ui/style/colour.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <map>

namespace tallyvane::ui {

using history::ChartPoint;
using history::HistoryGranularity;
using history::HistoryMetric;
using std::chrono::duration;

namespace {

constexpr double barShare = 0.62; // a bar's share of its bucket's width

bool isHatched(model::AIProvider provider) {
    return provider == model::AIProvider::claude;
}

/// The nominal length of a bucket.
model::Timestamp::duration bucketLength(HistoryGranularity granularity) {
    using std::chrono::days;
    return granularity == HistoryGranularity::daily ? days{1} : days{30};
}

} // namespace

HistoryModel::HistoryModel(const core::AppModel& model, const platform::Clock& clock,
                           const history::Calendar& calendar, const model::LocaleLabels& labels)
    : m_model(model), m_clock(clock), m_calendar(calendar), m_labels(labels) {
    connect(&model, &core::AppModel::historyChanged, this, &HistoryModel::update);
    connect(&model, &core::AppModel::onlyProviderChanged, this, &HistoryModel::showKey);
    showKey();
    update();
}

void HistoryModel::setMetric(int metric) {
    m_metric = static_cast<HistoryMetric>(metric);
    update();
}

void HistoryModel::setGranularity(int granularity) {
    m_granularity = static_cast<HistoryGranularity>(granularity);
    update();
}

QString HistoryModel::subtitle() const {
    return m_metric == HistoryMetric::percent ? tr("% of quota used") : tr("Estimated tokens used");
}

double HistoryModel::centre(QDate date) const {
    return duration<double>(history::startOfDay(date, m_calendar.zone) - m_start) /
           duration<double>(m_end - m_start);
}

void HistoryModel::update() {
    const model::Timestamp now = m_clock.now();
    const auto domain = history::xDomain(m_granularity, m_calendar, now);
    // Starts half a bucket early so that the first bar, centred on its date, is whole.
    m_start = history::startOfDay(domain.start, m_calendar.zone) - bucketLength(m_granularity) / 2;
    m_end = history::startOfDay(domain.end, m_calendar.zone);
    m_points = history::chartPoints(m_model.history(), m_granularity, m_calendar, now);
    std::erase_if(m_points, [&](const ChartPoint& point) {
        return point.date < domain.start || point.date >= domain.end;
    });
    std::vector<AxisMark> dateMarks;
    for (const QDate date : history::axisDates(m_granularity, domain)) {
        dateMarks.push_back({.position = centre(date), .label = m_labels.dayAndMonth(date)});
    }
    m_dateMarks.setRecords(std::move(dateMarks));
    showValueMarks();
    Q_EMIT changed();
    const bool isStillThere =
        m_hoveredDate &&
        std::ranges::find(m_points, *m_hoveredDate, &ChartPoint::date) != m_points.end();
    setHoveredDate(isStillThere ? m_hoveredDate : std::nullopt);
}

void HistoryModel::showValueMarks() {
    std::map<QDate, double> heights;
    double tallest = 0;
    for (const ChartPoint& point : m_points) {
        double& total = heights[point.date];
        total += std::max(history::height(point, m_metric), 0.0);
        tallest = std::max(tallest, total);
    }
    const auto values = history::axisValues(tallest, m_metric);
    m_isEmpty = tallest == 0;
    m_top = m_isEmpty ? 1 : values.back();
    std::vector<AxisMark> marks;
    for (const double value : values) {
        //: A percentage
        const QString label = m_metric == HistoryMetric::tokens
                                  ? m_labels.compactNumber(std::llround(value))
                                  : tr("%1%").arg(m_labels.number(value));
        marks.push_back({.position = value / m_top, .label = label});
    }
    m_valueMarks.setRecords(std::move(marks));
}

void HistoryModel::showKey() {
    std::vector<TooltipLine> key;
    for (const model::AIProvider provider : m_model.shownProviders()) {
        key.push_back({.name = model::displayName(provider),
                       .colour = toColour(model::accentColour(provider)),
                       .isHatched = isHatched(provider)});
    }
    m_key.setRecords(std::move(key));
}

double HistoryModel::barThickness() const {
    return barShare * duration<double>(bucketLength(m_granularity)) /
           duration<double>(m_end - m_start);
}

void HistoryModel::showSegments() {
    m_segments.clear();
    double base = 0;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const ChartPoint& point = m_points[i];
        if (i > 0 && m_points[i - 1].date != point.date) {
            base = 0;
        }
        const double extent = std::max(history::height(point, m_metric), 0.0) / m_top;
        m_segments.append({.centre = centre(point.date),
                           .base = base,
                           .extent = extent,
                           .colour = toColour(model::accentColour(point.provider)),
                           .isDimmed = m_hoveredDate.value_or(point.date) != point.date,
                           .isHatched = isHatched(point.provider)});
        base += extent;
    }
    Q_EMIT segmentsChanged();
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
    if (!hoveredNote().isEmpty()) {
        parts << hoveredNote();
    }
    return isHovered() ? parts.join(QStringLiteral(", ")) : QString();
}

QString HistoryModel::hoveredNote() const {
    const bool isSum = m_metric == HistoryMetric::percent && m_hoveredLines.records().size() > 1;
    return isSum ? tr("Shares of two weekly quotas, added up") : QString();
}

QString HistoryModel::valueText(const ChartPoint& point) const {
    return m_metric == HistoryMetric::percent
               ? tr("%1%").arg(point.quota, 0, 'f', 1)
               : tr("%1 tokens").arg(m_labels.compactNumber(point.tokens));
}

void HistoryModel::hover(double position) {
    const auto along = std::chrono::round<model::Timestamp::duration>(
        position * duration<double>(m_end - m_start));
    setHoveredDate(history::nearestBucket(m_points, m_calendar, m_start + along));
}

void HistoryModel::copy() const {
    QGuiApplication::clipboard()->setText(history::csvText(m_model.history(), m_calendar.zone));
}

void HistoryModel::leave() {
    setHoveredDate(std::nullopt);
}

void HistoryModel::step(int by) {
    if (m_points.empty()) {
        return;
    }
    if (!m_hoveredDate) {
        setHoveredDate(m_points.back().date);
        return;
    }
    const auto hovered = std::ranges::equal_range(m_points, *m_hoveredDate, {}, &ChartPoint::date);
    if (by > 0 && hovered.end() != m_points.end()) {
        setHoveredDate(hovered.end()->date);
    } else if (by < 0 && hovered.begin() != m_points.begin()) {
        setHoveredDate(std::prev(hovered.begin())->date);
    }
}

void HistoryModel::setHoveredDate(std::optional<QDate> date) {
    m_hoveredDate = m_isEmpty ? std::nullopt : date;
    std::vector<TooltipLine> lines;
    for (const ChartPoint& point : m_points) {
        if (date == point.date) {
            lines.push_back({.name = model::displayName(point.provider),
                             .value = valueText(point),
                             .colour = toColour(model::accentColour(point.provider)),
                             .isHatched = isHatched(point.provider)});
        }
    }
    m_hoveredLines.setRecords(std::move(lines));
    showSegments();
    Q_EMIT hoverChanged();
}

} // namespace tallyvane::ui

#include "moc_history_model.cpp"
