#pragma once

#include "model/quota_snapshot.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace tallyvane::app {

/// A table with a row per quota window of the snapshot, and "-" for what is not known.
[[nodiscard]] QString paceTable(const model::QuotaSnapshot& snapshot, model::Timestamp now);

/// The windows whose pace is known, in the JSON form that docs/interfaces.md describes.
[[nodiscard]] QByteArray paceJson(const model::QuotaSnapshot& snapshot, model::Timestamp now);

/// "+3", "-12" or "0": percentage points ahead of an even use.
[[nodiscard]] QString aheadText(double points);

/// "runs out in 1h 10m" or "lasts"; empty as long as that is not known.
[[nodiscard]] QString outlookText(const model::ProviderQuotaSnapshot& entry,
                                  model::QuotaPeriod period, model::Timestamp now);

} // namespace tallyvane::app
