#pragma once

#include "platform/widget_centre.h"

namespace tallyvane::platform {

/// Emits TimelinesReloaded(s kind) and AllTimelinesReloaded() of org.corvelle.Tallyvane.Widgets at
/// /org/corvelle/Tallyvane on the session bus. Without a bus nothing happens.
class DBusWidgetCentre final : public WidgetCentre {
public:
    void reloadTimelines(const QString& kind) override;
    void reloadAllTimelines() override;
};

} // namespace tallyvane::platform
