#include "model/recent_use.h"

namespace tallyvane::model {

namespace {

using namespace std::chrono;

Timestamp::duration horizon(QuotaPeriod period) {
    return period == QuotaPeriod::fiveHour ? microseconds{hours{1}} : microseconds{days{1}};
}

/// Of a horizon. Keeps the samples few however often the user refreshes.
constexpr int samplesPerHorizon = 60;

} // namespace

void RecentUse::add(const QuotaSnapshot& snapshot) {
    for (const ProviderQuotaSnapshot& entry : snapshot.providers) {
        for (const QuotaPeriod period : allCases<QuotaPeriod>) {
            const auto& quota = window(entry, period);
            if (entry.syncState == QuotaSyncState::current && entry.syncedAt && quota &&
                quota->resetsAt) {
                add(m_samples[{entry.provider, period}], period,
                    {.time = *entry.syncedAt, .window = *quota});
            }
        }
    }
}

void RecentUse::add(std::deque<Sample>& samples, QuotaPeriod period, const Sample& latest) {
    if (!samples.empty() && (latest.time < samples.back().time ||
                             isNextWindow(latest.window, samples.back().window, period))) {
        samples.clear();
    }
    const auto interval = horizon(period) / samplesPerHorizon;
    if (samples.size() >= 2 && samples.back().time - samples[samples.size() - 2].time < interval) {
        samples.pop_back();
    }
    samples.push_back(latest);
    while (latest.time - samples.front().time > horizon(period)) {
        samples.pop_front();
    }
}

RecentRates RecentUse::rates() const {
    RecentRates rates;
    for (const auto& [key, samples] : m_samples) {
        const duration<double> span = samples.back().time - samples.front().time;
        if (span >= 0.9 * horizon(key.second)) {
            rates[key] = (samples.back().window.usedPercent - samples.front().window.usedPercent) *
                         (duration<double>(length(key.second)) / span);
        }
    }
    return rates;
}

} // namespace tallyvane::model
