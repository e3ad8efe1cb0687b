#pragma once

#include <QtCore/QString>

namespace tallyvane::platform {

/// Notifies the desktop's widgets that the stored figures changed. Main thread only.
class WidgetCentre {
public:
    virtual ~WidgetCentre() = default;

    virtual void reloadTimelines(const QString& kind) = 0;
    virtual void reloadAllTimelines() = 0;
};

} // namespace tallyvane::platform
