#include "model/quota_pace.h"

#include "model/quota_display.h"

#include <algorithm>

namespace tallyvane::model {

namespace {

using namespace std::chrono;

/// Of the window. Before it, a single long task would look like a quota's end.
constexpr double projectedFrom = 0.05;

/// How many times the rate since the window's start.
constexpr double muchFaster = 1.5;

/// Percentage points.
constexpr double largestCorrection = 5;

} // namespace

Timestamp::duration length(QuotaPeriod period) {
    return period == QuotaPeriod::fiveHour ? microseconds{hours{5}} : microseconds{weeks{1}};
}

bool isNextWindow(const QuotaWindowSnapshot& later, const QuotaWindowSnapshot& earlier,
                  QuotaPeriod period) {
    const bool isResetLater = later.resetsAt && earlier.resetsAt &&
                              *later.resetsAt - *earlier.resetsAt >= length(period) / 2;
    return isResetLater || later.usedPercent < earlier.usedPercent - largestCorrection;
}

std::optional<QuotaPace> pace(const ProviderQuotaSnapshot& entry, QuotaPeriod period, Timestamp now,
                              const RecentRates& recent) {
    const auto& quota = window(entry, period);
    if (entry.syncState != QuotaSyncState::current || !entry.syncedAt || *entry.syncedAt > now ||
        !quota || !quota->resetsAt || *quota->resetsAt <= now) {
        return std::nullopt;
    }
    const Timestamp start = *quota->resetsAt - length(period);
    if (start > *entry.syncedAt) {
        return std::nullopt;
    }
    const duration<double> elapsed = *entry.syncedAt - start;
    const double gone = elapsed / duration<double>(length(period));
    QuotaPace result{.evenPercent = 100 * (1 - gone),
                     .leftPercent = remainingPercent(*quota),
                     .syncedAt = *entry.syncedAt,
                     .resetsAt = *quota->resetsAt};
    result.aheadPercent = result.leftPercent - result.evenPercent;
    if (gone < projectedFrom) {
        return result;
    }
    const double used = std::max(quota->usedPercent, 0.0);
    double rate = used / gone;
    double projected = rate;
    if (const auto known = recent.find({entry.provider, period});
        known != recent.end() && known->second > muchFaster * rate) {
        rate = known->second;
        projected = used + rate * (1 - gone);
        result.isRecent = true;
    }
    std::optional<Timestamp> end;
    if (used < 100 && projected > 100) {
        const duration<double> left = duration<double>(length(period)) * ((100 - used) / rate);
        end = *entry.syncedAt + duration_cast<Timestamp::duration>(left);
    }
    if (end && *end <= now) {
        return result;
    }
    result.isProjected = true;
    result.projectedPercent = projected;
    if (end && *quota->resetsAt - *end >= minutes{1}) {
        result.runsOutAt = end;
    }
    return result;
}

} // namespace tallyvane::model
