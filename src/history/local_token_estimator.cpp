#include "history/local_token_estimator.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>

#include <linux/ioprio.h>
#include <memory>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>

namespace tallyvane::history {

namespace {

/// Lowers the CPU and I/O priority of the calling thread; on Linux both are per thread.
void lowerPriority() {
    constexpr int niceness = 10;
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
    ::syscall(SYS_ioprio_set, IOPRIO_WHO_PROCESS, 0, IOPRIO_PRIO_VALUE(IOPRIO_CLASS_IDLE, 0));
}

} // namespace

LocalTokenEstimator::LocalTokenEstimator(std::filesystem::path home) : m_roots(logRoots(home)) {}

LocalTokenEstimator::~LocalTokenEstimator() {
    m_end.request_stop();
}

QCoro::Task<std::expected<TokenTotals, std::error_code>>
LocalTokenEstimator::estimate(model::Timestamp now, std::stop_token stop) {
    using Result = std::expected<TokenTotals, std::error_code>;
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    const auto count = [promise, roots = m_roots, now, stop, end = m_end.get_token()] {
        lowerPriority();
        std::stop_source either;
        const auto requestStop = [&either] { either.request_stop(); };
        const std::stop_callback onStop(stop, requestStop);
        const std::stop_callback onEnd(end, requestStop);
        const ScanReport report = scanSessionLogs(roots, now, either.get_token());
        promise->addResult(report.error ? Result(std::unexpected(report.error))
                                        : Result(report.totals));
        promise->finish();
    };
    // Shared, so that it survives a failure to start a thread.
    const auto before = std::make_shared<std::jthread>(std::move(m_thread));
    try {
        m_thread = std::jthread([count, before] {
            *before = {}; // waits
            count();
        });
    } catch (const std::system_error& error) {
        m_thread = std::move(*before);
        co_return std::unexpected(error.code());
    }
    const QFuture<Result> totals = promise->future();
    co_return co_await totals;
}

} // namespace tallyvane::history
