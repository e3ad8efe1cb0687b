#pragma once

#include "model/quota_snapshot.h"

#include <QCoro/QCoroTask>

#include <cstdint>
#include <map>
#include <stop_token>

namespace tallyvane::history {

/// Tokens per provider; always holds every provider.
using TokenTotals = std::map<model::AIProvider, std::int64_t>;

/// Counts the tokens in the assistants' local session logs. This version reads no logs yet and
/// counts none.
class LocalTokenEstimator {
public:
    /// Never fails. Once `stop` is requested it ends soon, with totals that mean nothing.
    [[nodiscard]] QCoro::Task<TokenTotals> estimate(std::stop_token stop);
};

} // namespace tallyvane::history
