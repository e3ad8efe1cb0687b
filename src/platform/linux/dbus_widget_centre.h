#pragma once

#include "platform/widget_centre.h"

namespace tallyvane::platform {

/// Emits TimelinesReloaded(s kind) and AllTimelinesReloaded() of org.corvelle.Tallyvane.Widgets at
/// /org/corvelle/Tallyvane on the session bus, if there is one.
class DBusWidgetCentre final : public WidgetCentre {
public:
    void reloadTimelines(const QString& kind) override;
    void reloadAllTimelines() override;
};

} // namespace tallyvane::platform
