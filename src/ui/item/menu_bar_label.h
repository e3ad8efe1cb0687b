#pragma once

#include "core/app_model.h"

#include <QtCore/QStringList>

/// What the status item shows of a snapshot; pure functions.
namespace tallyvane::ui {

/// The figures of the two gauges: percent left, 0 to 100, or nothing where no window is known.
struct GaugeValues {
    std::optional<double> codex;
    std::optional<double> claude;

    bool operator==(const GaugeValues&) const = default;
};

/// The percentages of the five-hour windows, or of the weekly ones where those are absent.
[[nodiscard]] GaugeValues gaugeValues(const model::QuotaSnapshot& snapshot);

/// Plain text: a title with the smallest figure, as some panels show nothing else, then a line per
/// provider, and lines on why figures are missing and what to do.
[[nodiscard]] QStringList tooltipLines(const model::QuotaSnapshot& snapshot,
                                       const core::Failures& failures);

} // namespace tallyvane::ui
