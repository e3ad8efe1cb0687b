#pragma once

#include "core/app_model.h"
#include "history/history_chart.h"
#include "model/locale_labels.h"
#include "ui/history/axis_mark.h"
#include "ui/style/record_list.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// One segment of a bar. Lengths are fractions of the plot's width or height.
class ChartSegment {
    Q_GADGET
    QML_VALUE_TYPE(chartSegment)

public:
    double centre = 0;
    double base = 0; ///< the height of its lower end
    double extent = 0;
    QColor colour;
    bool isDimmed = false;  ///< another bar is pointed at
    bool isHatched = false; ///< where colours alone do not do, to tell the providers apart

    bool operator==(const ChartSegment&) const = default;
};

/// One provider's line of the tooltip or of the key to the colours, which has no values.
class TooltipLine {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QColor colour MEMBER colour)
    Q_PROPERTY(bool isHatched MEMBER isHatched)

public:
    QString name;
    QString value; ///< "12.5%" or "12K tokens"
    QColor colour;
    bool isHatched = false; ///< like ChartSegment::isHatched

    bool operator==(const TooltipLine&) const = default;
};

/// What the bar chart shows: the usage history, and the bar pointed at.
class HistoryModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(int metric READ metric WRITE setMetric NOTIFY changed)
    Q_PROPERTY(int granularity READ granularity WRITE setGranularity NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(double barThickness READ barThickness NOTIFY changed)
    Q_PROPERTY(QList<tallyvane::ui::ChartSegment> segments READ segments NOTIFY segmentsChanged)
    Q_PROPERTY(QAbstractItemModel* dateMarks READ dateMarks CONSTANT)
    Q_PROPERTY(QAbstractItemModel* valueMarks READ valueMarks CONSTANT)
    Q_PROPERTY(bool isHovered READ isHovered NOTIFY hoverChanged)
    Q_PROPERTY(double hoveredCentre READ hoveredCentre NOTIFY hoverChanged)
    Q_PROPERTY(QString hoveredTitle READ hoveredTitle NOTIFY hoverChanged)
    Q_PROPERTY(QString hoveredText READ hoveredText NOTIFY hoverChanged)
    Q_PROPERTY(QAbstractItemModel* hoveredLines READ hoveredLines CONSTANT)
    Q_PROPERTY(QString hoveredNote READ hoveredNote NOTIFY hoverChanged)
    Q_PROPERTY(QAbstractItemModel* key READ key CONSTANT)

public:
    /// `model`, `clock` and `labels` must outlive it.
    HistoryModel(const core::AppModel& model, const platform::Clock& clock,
                 const history::Calendar& calendar, const model::LocaleLabels& labels);

    /// A history::HistoryMetric, as a picker's index.
    [[nodiscard]] int metric() const { return static_cast<int>(m_metric); }
    void setMetric(int metric);
    /// A history::HistoryGranularity, as a picker's index.
    [[nodiscard]] int granularity() const { return static_cast<int>(m_granularity); }
    void setGranularity(int granularity);
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] bool isEmpty() const { return m_isEmpty; }
    /// As a share of the plot's width.
    [[nodiscard]] double barThickness() const;
    [[nodiscard]] const QList<ChartSegment>& segments() const { return m_segments; }
    [[nodiscard]] QAbstractItemModel* dateMarks() { return &m_dateMarks; }
    [[nodiscard]] QAbstractItemModel* valueMarks() { return &m_valueMarks; }

    [[nodiscard]] bool isHovered() const { return m_hoveredDate.has_value(); }
    [[nodiscard]] double hoveredCentre() const; ///< like ChartSegment::centre
    [[nodiscard]] QString hoveredTitle() const; ///< the day or month
    [[nodiscard]] QString hoveredText() const;  ///< the whole tooltip in one line
    [[nodiscard]] QAbstractItemModel* hoveredLines() { return &m_hoveredLines; }
    [[nodiscard]] QString hoveredNote() const; ///< what the bar's height means; may be empty
    [[nodiscard]] QAbstractItemModel* key() { return &m_key; }

    /// Points at the bucket nearest to `position`, a fraction of the plot's width.
    Q_INVOKABLE void hover(double position);
    Q_INVOKABLE void leave();
    /// Points at the next bucket if `by` is positive, else at the previous one; at the latest one
    /// if none is pointed at.
    Q_INVOKABLE void step(int by);

    /// Puts the daily figures on the clipboard, as history::csvText() writes them.
    Q_INVOKABLE void copy() const;

    /// Recomputes everything. Call when a new day begins.
    void update();

Q_SIGNALS:
    void changed();
    void hoverChanged();
    void segmentsChanged();

private:
    [[nodiscard]] double centre(QDate date) const;
    [[nodiscard]] QString valueText(const history::ChartPoint& point) const;
    void setHoveredDate(std::optional<QDate> date);
    void showKey();
    void showSegments();
    void showValueMarks();

    const core::AppModel& m_model;
    const platform::Clock& m_clock;
    const history::Calendar m_calendar;
    const model::LocaleLabels& m_labels;
    history::HistoryMetric m_metric = history::HistoryMetric::percent;
    history::HistoryGranularity m_granularity = history::HistoryGranularity::daily;
    std::optional<QDate> m_hoveredDate;
    std::vector<history::ChartPoint> m_points; ///< those on the axis, by date
    model::Timestamp m_start;                  ///< the plot's leading end
    model::Timestamp m_end;                    ///< the plot's trailing end
    bool m_isEmpty = true;                     ///< all values shown are 0
    double m_top = 1;                          ///< the value at the plot's upper end
    QList<ChartSegment> m_segments;
    RecordList<AxisMark> m_dateMarks;
    RecordList<AxisMark> m_valueMarks;
    RecordList<TooltipLine> m_hoveredLines;
    RecordList<TooltipLine> m_key;
};

} // namespace tallyvane::ui
