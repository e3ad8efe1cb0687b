#pragma once

#include "core/app_model.h"
#include "history/history_chart.h"
#include "model/locale_labels.h"
#include "ui/style/record_list.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace tallyvane::ui {

/// One segment of a bar. Lengths are parts of the plot's width and height.
class ChartSegment {
    Q_GADGET
    Q_PROPERTY(double centre MEMBER centre)
    Q_PROPERTY(double thickness MEMBER thickness)
    Q_PROPERTY(double base MEMBER base)
    Q_PROPERTY(double extent MEMBER extent)
    Q_PROPERTY(QColor colour MEMBER colour)
    Q_PROPERTY(double strength MEMBER strength)

public:
    double centre = 0;
    double thickness = 0;
    double base = 0; ///< of its lower end above the axis
    double extent = 0;
    QColor colour;
    double strength = 1; ///< opacity

    bool operator==(const ChartSegment&) const = default;
};

class AxisMark {
    Q_GADGET
    Q_PROPERTY(double position MEMBER position)
    Q_PROPERTY(QString label MEMBER label)

public:
    double position = 0; ///< part of the plot's width or height, from the leading or lower end
    QString label;

    bool operator==(const AxisMark&) const = default;
};

/// One provider's line of the tooltip.
class TooltipLine {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QColor colour MEMBER colour)

public:
    QString name;
    QString value; ///< "12.5%" or "12K tokens"
    QColor colour;

    bool operator==(const TooltipLine&) const = default;
};

/// What the bar chart of the usage history shows.
class HistoryModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(int metric READ metric WRITE setMetric NOTIFY changed)
    Q_PROPERTY(int granularity READ granularity WRITE setGranularity NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* segments READ segments CONSTANT)
    Q_PROPERTY(QAbstractItemModel* dateMarks READ dateMarks CONSTANT)
    Q_PROPERTY(QAbstractItemModel* valueMarks READ valueMarks CONSTANT)
    Q_PROPERTY(bool isHovered READ isHovered NOTIFY hoverChanged)
    Q_PROPERTY(double hoveredCentre READ hoveredCentre NOTIFY hoverChanged)
    Q_PROPERTY(QString hoveredTitle READ hoveredTitle NOTIFY hoverChanged)
    Q_PROPERTY(QString hoveredText READ hoveredText NOTIFY hoverChanged)
    Q_PROPERTY(QAbstractItemModel* hoveredLines READ hoveredLines CONSTANT)

public:
    /// All outlive it.
    HistoryModel(const core::AppModel& model, const platform::Clock& clock,
                 const history::Calendar& calendar, const model::LocaleLabels& labels,
                 QObject* parent = nullptr);

    /// A history::HistoryMetric, as the picker counts its choices.
    [[nodiscard]] int metric() const { return static_cast<int>(m_metric); }
    void setMetric(int metric);
    /// A history::HistoryGranularity, as the picker counts its choices.
    [[nodiscard]] int granularity() const { return static_cast<int>(m_granularity); }
    void setGranularity(int granularity);
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] bool isEmpty() const { return m_points.empty(); }
    [[nodiscard]] QAbstractItemModel* segments() { return &m_segments; }
    [[nodiscard]] QAbstractItemModel* dateMarks() { return &m_dateMarks; }
    [[nodiscard]] QAbstractItemModel* valueMarks() { return &m_valueMarks; }

    [[nodiscard]] bool isHovered() const { return m_hoveredDate.has_value(); }
    [[nodiscard]] double hoveredCentre() const; ///< as ChartSegment::centre
    [[nodiscard]] QString hoveredTitle() const; ///< the day or the month
    [[nodiscard]] QString hoveredText() const;  ///< all of the tooltip as one sentence
    [[nodiscard]] QAbstractItemModel* hoveredLines() { return &m_hoveredLines; }

    /// Points at the bucket nearest to `position`, a part of the plot's width.
    Q_INVOKABLE void hover(double position);
    Q_INVOKABLE void leave();
    /// Points at the bucket `by` after the present one, from the latest one on when there is none.
    Q_INVOKABLE void step(int by);

    /// Shows the state of the moment; to be called when a new day begins.
    void update();

Q_SIGNALS:
    void changed();
    void hoverChanged();

private:
    [[nodiscard]] double position(model::Timestamp moment) const;
    [[nodiscard]] double centre(QDate date) const;
    [[nodiscard]] QString valueText(const history::ChartPoint& point) const;
    void setHoveredDate(std::optional<QDate> date);
    void showSegments();
    void showMarks();

    const core::AppModel& m_model;
    const platform::Clock& m_clock;
    const history::Calendar& m_calendar;
    const model::LocaleLabels& m_labels;
    history::HistoryMetric m_metric = history::HistoryMetric::percent;
    history::HistoryGranularity m_granularity = history::HistoryGranularity::daily;
    std::optional<QDate> m_hoveredDate;
    std::vector<history::ChartPoint> m_points; ///< those on the axis
    history::DateDomain m_domain;
    double m_top = 1; ///< the value at the plot's upper end
    RecordList<ChartSegment> m_segments;
    RecordList<AxisMark> m_dateMarks;
    RecordList<AxisMark> m_valueMarks;
    RecordList<TooltipLine> m_hoveredLines;
};

} // namespace tallyvane::ui
