#pragma once

#include "core/app_model.h"
#include "history/heatmap.h"
#include "model/locale_labels.h"
#include "ui/history/axis_mark.h"
#include "ui/style/appearance.h"
#include "ui/style/record_list.h"

namespace tallyvane::ui {

/// One day of the heatmap.
class HeatmapCell {
    Q_GADGET
    QML_VALUE_TYPE(heatmapCell)

public:
    QColor colour;        ///< transparent if the day is in the future
    int level = 0;        ///< history::level() of its tokens
    bool isFilled = true; ///< false for an outline: the history does not reach back to that day

    bool operator==(const HeatmapCell&) const = default;
};

/// What the heatmap shows: a column of seven cells per week, one column after the other, and the
/// cell pointed at.
class HeatmapModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(int filter READ filter WRITE setFilter NOTIFY changed)
    Q_PROPERTY(bool hasFilter READ hasFilter NOTIFY changed)
    Q_PROPERTY(int weeks READ weeks WRITE setWeeks NOTIFY changed)
    Q_PROPERTY(QList<tallyvane::ui::HeatmapCell> cells READ cells NOTIFY changed)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    Q_PROPERTY(QAbstractItemModel* months READ months CONSTANT)
    Q_PROPERTY(QList<tallyvane::ui::HeatmapCell> legend READ legend NOTIFY changed)
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    Q_PROPERTY(QString currentText READ currentText NOTIFY currentChanged)

public:
    /// The references other than `calendar` must outlive it.
    HeatmapModel(const core::AppModel& model, const platform::Clock& clock,
                 const Appearance& appearance, const history::Calendar& calendar,
                 const model::LocaleLabels& labels);

    /// A history::HeatmapFilter, as a picker's index.
    [[nodiscard]] int filter() const { return static_cast<int>(m_filter); }
    void setFilter(int filter);
    /// Whether there is a choice: without one the total is that of the provider shown alone.
    [[nodiscard]] bool hasFilter() const { return !m_model.onlyProvider(); }
    /// The number of columns, 0 until the view sets it.
    [[nodiscard]] int weeks() const { return m_weeks; }
    void setWeeks(int weeks);
    [[nodiscard]] const QList<HeatmapCell>& cells() const { return m_cells; }
    [[nodiscard]] QStringList weekdays() const; ///< from top to bottom
    [[nodiscard]] QAbstractItemModel* months() { return &m_months; }
    [[nodiscard]] QList<HeatmapCell> legend() const;        ///< from "Less" to "More"
    [[nodiscard]] int current() const { return m_current; } ///< a cell's index; -1 for none
    [[nodiscard]] QString currentText() const;              ///< that cell's day and tokens, if any

    /// Points at a cell, or at none if there is no such cell or its day is in the future.
    Q_INVOKABLE void point(int index);
    /// Points at the cell `by` cells on, if it can be pointed at; at today's if none is pointed at.
    Q_INVOKABLE void step(int by);

    /// Recomputes everything. Call when a new day begins.
    void update();

Q_SIGNALS:
    void changed();
    void currentChanged();

private:
    void followProviders();
    void showMonths();
    [[nodiscard]] model::ColourScheme scheme() const;
    [[nodiscard]] const history::DayCell* cell(int index) const;
    [[nodiscard]] bool isCovered(QDate day) const;

    const core::AppModel& m_model;
    const platform::Clock& m_clock;
    const Appearance& m_appearance;
    const history::Calendar m_calendar;
    const model::LocaleLabels& m_labels;
    history::HeatmapFilter m_filter = history::HeatmapFilter::total;
    int m_weeks = 0;
    int m_current = -1;
    std::vector<history::WeekColumn> m_columns;
    QDate m_firstKept; ///< the oldest day that the history keeps
    history::DayTotals m_totals;
    QList<HeatmapCell> m_cells;
    RecordList<AxisMark> m_months; ///< at the columns in which they begin
};

} // namespace tallyvane::ui
