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

/// For the calling thread alone, as Linux has it: setpriority(2) against its standard,
/// ioprio_set(2). Where the system refuses, the count is no less right.
void giveWay() {
    constexpr int niceness = 10;
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
    ::syscall(SYS_ioprio_set, IOPRIO_WHO_PROCESS, 0, IOPRIO_PRIO_VALUE(IOPRIO_CLASS_IDLE, 0));
}

std::unexpected<EstimateError> failure(const std::error_code& error) {
    return std::unexpected(EstimateError{scanFailureText(error)});
}

} // namespace

LocalTokenEstimator::LocalTokenEstimator(std::filesystem::path home) : m_roots(logRoots(home)) {}

LocalTokenEstimator::~LocalTokenEstimator() {
    m_end.request_stop();
}

QCoro::Task<std::expected<TokenTotals, EstimateError>>
LocalTokenEstimator::estimate(model::Timestamp now, std::stop_token stop) {
    using Result = std::expected<TokenTotals, EstimateError>;
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    const auto count = [promise, roots = m_roots, now, stop, end = m_end.get_token()] {
        giveWay();
        std::stop_source either;
        const auto requestStop = [&either] { either.request_stop(); };
        const std::stop_callback onStop(stop, requestStop);
        const std::stop_callback onEnd(end, requestStop);
        const ScanReport report = scanSessionLogs(roots, now, either.get_token());
        promise->addResult(report.error ? Result(failure(report.error)) : Result(report.totals));
        promise->finish();
    };
    // Shared, so that it is still there if no thread can be made.
    const auto before = std::make_shared<std::jthread>(std::move(m_thread));
    try {
        m_thread = std::jthread([count, before] {
            *before = {}; // waits
            count();
        });
    } catch (const std::system_error& error) {
        m_thread = std::move(*before);
        co_return failure(error.code());
    }
    const QFuture<Result> totals = promise->future();
    co_return co_await totals;
}

} // namespace tallyvane::history
