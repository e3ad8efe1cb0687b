#include "ui/history/heatmap_model.h"

#include "history/calendar_days.h"
#include "ui/style/colour.h"

namespace tallyvane::ui {

using history::DayCell;

namespace {

constexpr int daysPerWeek = 7;

} // namespace

HeatmapModel::HeatmapModel(const core::AppModel& model, const platform::Clock& clock,
                           const Appearance& appearance, const history::Calendar& calendar,
                           const model::LocaleLabels& labels)
    : m_model(model),
      m_clock(clock),
      m_appearance(appearance),
      m_calendar(calendar),
      m_labels(labels) {
    connect(&model, &core::AppModel::historyChanged, this, &HeatmapModel::update);
    connect(&model, &core::AppModel::onlyProviderChanged, this, &HeatmapModel::followProviders);
    connect(&appearance, &Appearance::changed, this, &HeatmapModel::update);
}

void HeatmapModel::setFilter(int filter) {
    m_filter = static_cast<history::HeatmapFilter>(filter);
    update();
}

void HeatmapModel::followProviders() {
    if (!hasFilter()) {
        m_filter = history::HeatmapFilter::total;
    }
    update();
}

void HeatmapModel::setWeeks(int weeks) {
    if (weeks != m_weeks) {
        m_weeks = weeks;
        point(-1);
        update();
    }
}

model::ColourScheme HeatmapModel::scheme() const {
    return m_appearance.isDark() ? model::ColourScheme::dark : model::ColourScheme::light;
}

void HeatmapModel::update() {
    const model::Timestamp now = m_clock.now();
    m_columns = history::heatmapColumns(m_weeks, m_calendar, now);
    m_firstKept = history::localDay(now, m_calendar.zone).addDays(-history::retentionDays);
    m_totals = history::dayTotals(m_model.history(), m_filter, m_calendar);
    m_cells.clear();
    for (const history::WeekColumn& column : m_columns) {
        for (const DayCell& cell : column) {
            const auto fill =
                history::cellColour(cell.day, m_totals.byDay, m_totals.maximum, m_filter, scheme());
            m_cells.append({.colour = cell.isFuture ? QColor(Qt::transparent)
                                                    : toColour(fill.colour, fill.opacity),
                            .level = history::cellLevel(cell.day, m_totals),
                            .isFilled = isCovered(cell.day)});
        }
    }
    showMonths();
    Q_EMIT changed();
    Q_EMIT currentChanged();
}

QStringList HeatmapModel::weekdays() const {
    QStringList names;
    const auto thisWeek = history::heatmapColumns(1, m_calendar, m_clock.now());
    for (const DayCell& cell : thisWeek.front()) {
        names << m_labels.weekday(cell.day);
    }
    return names;
}

void HeatmapModel::showMonths() {
    std::vector<AxisMark> months;
    int index = -1;
    for (const history::WeekColumn& column : m_columns) {
        ++index;
        const auto first =
            std::ranges::find(column, 1, [](const DayCell& cell) { return cell.day.day(); });
        if (first != column.end() && !first->isFuture) {
            months.push_back({.position = static_cast<double>(index) / m_weeks,
                              .label = m_labels.month(first->day)});
        }
    }
    m_months.setRecords(std::move(months));
}

QList<HeatmapCell> HeatmapModel::legend() const {
    QList<HeatmapCell> cells;
    for (int level = 0; level <= history::highestLevel; ++level) {
        const auto fill = history::levelColour(level, m_filter, scheme());
        cells.append({.colour = toColour(fill.colour, fill.opacity), .level = level});
    }
    return cells;
}

const DayCell* HeatmapModel::cell(int index) const {
    if (index < 0 || index >= static_cast<int>(m_columns.size()) * daysPerWeek) {
        return nullptr;
    }
    const DayCell& cell = m_columns[static_cast<std::size_t>(index / daysPerWeek)]
                                   [static_cast<std::size_t>(index % daysPerWeek)];
    return cell.isFuture ? nullptr : &cell;
}

bool HeatmapModel::isCovered(QDate day) const {
    return day >= m_firstKept || m_totals.byDay.contains(day);
}

QString HeatmapModel::currentText() const {
    const DayCell* pointed = cell(m_current);
    if (pointed == nullptr) {
        return {};
    }
    const QString day = m_labels.fullDay(pointed->day);
    const auto total = m_totals.byDay.find(pointed->day);
    if (total != m_totals.byDay.end()) {
        //: %1 is a day, %2 a number such as "12K"
        return tr("%1: %2 tokens").arg(day, m_labels.compactNumber(total->second));
    }
    //: %1 is a day
    const QString unrecorded = tr("%1: No record").arg(day);
    //: Follows "No record"
    const QString reason = tr("(the history covers %n days)", nullptr, history::retentionDays);
    return isCovered(pointed->day) ? unrecorded : unrecorded + u' ' + reason;
}

void HeatmapModel::point(int index) {
    const int current = cell(index) != nullptr ? index : -1;
    if (std::exchange(m_current, current) != current) {
        Q_EMIT currentChanged();
    }
}

void HeatmapModel::step(int by) {
    if (m_current < 0) {
        int today = static_cast<int>(m_columns.size()) * daysPerWeek - 1;
        while (today > 0 && cell(today) == nullptr) {
            --today;
        }
        point(today);
    } else if (cell(m_current + by) != nullptr) {
        point(m_current + by);
    }
}

} // namespace tallyvane::ui

#include "moc_heatmap_model.cpp"
