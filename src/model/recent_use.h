#pragma once

#include "model/quota_pace.h"

#include <deque>

namespace tallyvane::model {

/// What was used of each quota window of late, according to the refreshes that this program has
/// seen; in memory only, and of bounded size.
class RecentUse {
public:
    /// Takes the current figures of a refresh.
    void add(const QuotaSnapshot& snapshot);

    /// The rates over the last hour of five-hour windows and the last day of weekly ones, of those
    /// that were seen for nine tenths of that time without a reset.
    [[nodiscard]] RecentRates rates() const;

private:
    struct Sample {
        Timestamp time;
        QuotaWindowSnapshot window;
    };

    void add(std::deque<Sample>& samples, QuotaPeriod period, const Sample& latest);

    std::map<QuotaKey, std::deque<Sample>> m_samples; ///< from old to new
};

} // namespace tallyvane::model
