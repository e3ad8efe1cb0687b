#pragma once

#include "core/app_model.h"

#include <QtCore/QStringList>

/// What the status item shows of a snapshot; pure functions.
namespace tallyvane::ui {

/// A figure for each provider shown: percent left, 0 to 100, or nothing where no window is known.
using GaugeValues = std::vector<std::optional<double>>;

/// The percentages of the five-hour windows, or of the weekly ones where those are absent.
[[nodiscard]] GaugeValues gaugeValues(const model::QuotaSnapshot& snapshot);

/// How long ago the provider's figures were fetched, "20 min ago", if that was not in the last
/// refresh or is a quarter of an hour ago or more; else empty.
[[nodiscard]] QString oldFiguresAge(const model::ProviderQuotaSnapshot& entry,
                                    model::Timestamp now);

/// When the provider's quotas reset, "5H resets in 2h 14m" and "WK in 3d 4h", as far as known.
[[nodiscard]] QStringList resetTexts(const model::ProviderQuotaSnapshot& entry,
                                     model::Timestamp now);

/// model::summaryLines(), with the age of old figures.
[[nodiscard]] QStringList menuLines(const model::QuotaSnapshot& snapshot, model::Timestamp now);

/// "Codex: 5H runs out in 1h 10m"; empty if the provider's quotas last until their resets, as far
/// as known.
[[nodiscard]] QString runOutMenuLine(const model::ProviderQuotaSnapshot& entry,
                                     model::Timestamp now, const model::RecentRates& recent = {});

/// Plain text: a title with the smallest figure, as some panels show nothing else, then per
/// provider its line of the menu, the resets and what will run out before, and lines on why figures
/// are missing and what to do.
[[nodiscard]] QStringList tooltipLines(const model::QuotaSnapshot& snapshot,
                                       const core::Failures& failures, model::Timestamp now,
                                       const model::RecentRates& recent = {});

} // namespace tallyvane::ui
