#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>

namespace tallyvane::ui {

/// A label along one side of a chart.
class AxisMark {
    Q_GADGET
    Q_PROPERTY(double position MEMBER position)
    Q_PROPERTY(QString label MEMBER label)

public:
    double position = 0; ///< fraction of the plot's width or height, from the leading or lower end
    QString label;

    bool operator==(const AxisMark&) const = default;
};

} // namespace tallyvane::ui
