#include "history/local_token_estimator.h"

namespace tallyvane::history {

QCoro::Task<TokenTotals> LocalTokenEstimator::estimate(std::stop_token /*stop*/) {
    TokenTotals totals;
    for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
        totals[provider] = 0;
    }
    co_return totals;
}

} // namespace tallyvane::history
