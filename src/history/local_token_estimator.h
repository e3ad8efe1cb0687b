#pragma once

#include "history/session_log_scan.h"

#include <QCoro/QCoroTask>
#include <QtCore/QString>

#include <expected>
#include <filesystem>
#include <stop_token>
#include <thread>

namespace tallyvane::history {

/// Why nothing was counted.
struct EstimateError {
    QString message; ///< one sentence for the user
};

/// Counts the tokens in the assistants' local session logs, in a thread of its own that yields to
/// everything else on the machine. Main thread only. Its end stops a running count and waits until
/// the file at hand is read.
class LocalTokenEstimator {
public:
    /// Counts below `home`, the user's home directory.
    explicit LocalTokenEstimator(std::filesystem::path home);
    ~LocalTokenEstimator();
    LocalTokenEstimator(const LocalTokenEstimator&) = delete;
    LocalTokenEstimator& operator=(const LocalTokenEstimator&) = delete;

    /// What scanSessionLogs counts as of `now`; an error when the system gives no thread or too few
    /// open files for it. Once `stop` is requested it ends soon, with totals that mean nothing.
    [[nodiscard]] QCoro::Task<std::expected<TokenTotals, EstimateError>>
    estimate(model::Timestamp now, std::stop_token stop);

private:
    LogRoots m_roots;
    std::stop_source m_end;
    std::jthread m_thread; ///< of the last count; it waits for the one before
};

} // namespace tallyvane::history
