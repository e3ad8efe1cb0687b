#pragma once

#include "model/quota_snapshot.h"

#include <map>
#include <utility>

/// Whether a quota lasts until its reset. Pure functions.
namespace tallyvane::model {

using QuotaKey = std::pair<AIProvider, QuotaPeriod>;

/// Percentage points used per window length at the rate of late; of those windows of which that is
/// known.
using RecentRates = std::map<QuotaKey, double>;

/// How the use of a quota window compares with an even one, which would reach 100 % just at the
/// reset. With the window's length L, its reset r and the last sync s, the share of the window gone
/// at that sync is g = 1 - (r - s) / L. The figures are those of that sync, and so is the pace.
struct QuotaPace {
    double evenPercent = 100;    ///< what an even use would have left: 100 (1 - g), 0 to 100
    double aheadPercent = 0;     ///< percentage points more left than that; negative: less
    double leftPercent = 100;    ///< remainingPercent()
    Timestamp syncedAt;          ///< s
    Timestamp resetsAt;          ///< r
    bool isProjected = false;    ///< whether enough of the window is gone to tell what comes
    double projectedPercent = 0; ///< used at the reset if use goes on as so far: used / g
    /// When nothing is left if use goes on as so far: r - L + 100 g L / used. Only if that is in
    /// the future and a minute or more before the reset.
    std::optional<Timestamp> runsOutAt;
    /// Whether what is projected is at the rate of late, which is then the much faster one: used +
    /// rate (1 - g), and s + L (100 - used) / rate.
    bool isRecent = false;

    bool operator==(const QuotaPace&) const = default;
};

[[nodiscard]] Timestamp::duration length(QuotaPeriod period);

/// Whether `later` belongs to another window than `earlier`: its reset lies half a window or more
/// after the other, or more than 5 percentage points less are used. Up to that, providers correct
/// their figures; and they report one reset with another fraction of a second each time.
[[nodiscard]] bool isNextWindow(const QuotaWindowSnapshot& later,
                                const QuotaWindowSnapshot& earlier, QuotaPeriod period);

/// Nothing if the figures are not current, the window or its reset is unknown, the reset is past or
/// farther away than a window is long, or a clock that was set back puts the sync into the future.
/// Projected from 5 % of the window on, unless the projected end has passed and the figures are
/// too old to tell. The rate of late counts if it is more than one and a half times that since the
/// window's start. A slower one does not: replayed courses go on after a pause as before.
[[nodiscard]] std::optional<QuotaPace> pace(const ProviderQuotaSnapshot& entry, QuotaPeriod period,
                                            Timestamp now, const RecentRates& recent = {});

} // namespace tallyvane::model
