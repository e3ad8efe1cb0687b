#include "model/quota_pace.h"

#include "model/quota_display.h"

#include <algorithm>

namespace tallyvane::model {

namespace {

using namespace std::chrono;

/// Of the window. Before it, a single long task would look like a quota's end.
constexpr double projectedFrom = 0.05;

} // namespace

Timestamp::duration length(QuotaPeriod period) {
    return period == QuotaPeriod::fiveHour ? microseconds{hours{5}} : microseconds{weeks{1}};
}

std::optional<QuotaPace> pace(const ProviderQuotaSnapshot& entry, QuotaPeriod period,
                              Timestamp now) {
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
    QuotaPace result{.evenPercent = 100 * (1 - gone), .resetsAt = *quota->resetsAt};
    result.aheadPercent = remainingPercent(*quota) - result.evenPercent;
    if (gone < projectedFrom) {
        return result;
    }
    const double used = std::max(quota->usedPercent, 0.0);
    const double projected = used / gone;
    std::optional<Timestamp> end;
    if (used < 100 && projected > 100) {
        end = start + duration_cast<Timestamp::duration>(elapsed * (100 / used));
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
