#pragma once

#include "model/quota_snapshot.h"

#include <QtCore/QStringList>

/// What the status item says, made from a snapshot; pure functions.
namespace tallyvane::ui {

/// How full the two gauges are: percent left, 0 to 100; nothing where no window is known.
struct GaugeValues {
    std::optional<double> codex;
    std::optional<double> claude;

    bool operator==(const GaugeValues&) const = default;
};

/// The five-hour windows, or the weekly ones where those are absent.
[[nodiscard]] GaugeValues gaugeValues(const model::QuotaSnapshot& snapshot);

/// A title that says the most by itself, since some panels show nothing else, then the menu's
/// lines; plain text.
[[nodiscard]] QStringList tooltipLines(const model::QuotaSnapshot& snapshot);

} // namespace tallyvane::ui
