#pragma once

#include "history/local_token_estimator.h"
#include "history/usage_history.h"

namespace tallyvane::history {

/// Turns one refresh into history. Made anew for each. This version adds no points yet.
class UsageHistoryRecorder {
public:
    explicit UsageHistoryRecorder(const model::SharedStore& store) : m_store(store) {}

    /// The history after the refresh that replaced `previous` by `current`, already saved; fails
    /// when it cannot be saved.
    [[nodiscard]] std::expected<UsageHistory, model::FileError>
    record(const model::QuotaSnapshot& previous, const model::QuotaSnapshot& current,
           const TokenTotals& tokenTotals) const;

private:
    const model::SharedStore& m_store;
};

} // namespace tallyvane::history
