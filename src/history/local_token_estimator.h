#pragma once

#include "history/session_log_scan.h"

#include <QCoro/QCoroTask>

#include <expected>
#include <filesystem>
#include <stop_token>
#include <thread>

namespace tallyvane::history {

/// Counts the tokens in the assistants' local session logs on a low-priority thread. Main thread
/// only. The destructor stops a running count and waits for the file being read.
class LocalTokenEstimator {
public:
    /// `home` is the user's home directory.
    explicit LocalTokenEstimator(std::filesystem::path home);
    ~LocalTokenEstimator();
    LocalTokenEstimator(const LocalTokenEstimator&) = delete;
    LocalTokenEstimator& operator=(const LocalTokenEstimator&) = delete;

    /// The totals of scanSessionLogs(), or an error if the system lacks threads or descriptors (see
    /// scanFailureText()). Returns soon, with invalid totals, when `stop` is requested.
    [[nodiscard]] QCoro::Task<std::expected<TokenTotals, std::error_code>>
    estimate(model::Timestamp now, std::stop_token stop);

private:
    LogRoots m_roots;
    std::stop_source m_end;
    std::jthread m_thread; ///< of the latest count; waits for the previous one
};

} // namespace tallyvane::history
