#include "history/usage_history_recorder.h"

namespace tallyvane::history {

std::expected<UsageHistory, model::FileError>
UsageHistoryRecorder::record(const model::QuotaSnapshot& /*previous*/,
                             const model::QuotaSnapshot& /*current*/,
                             const TokenTotals& /*tokenTotals*/) const {
    return loadHistory(m_store).value_or(UsageHistory{});
}

} // namespace tallyvane::history
