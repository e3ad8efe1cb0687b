#pragma once

#include "platform/clock.h"
#include "providers/response_collector.h"

#include <QCoro/QCoroTask>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

namespace tallyvane::providers {

/// The first of these absolute paths that is a regular file which the user may execute.
[[nodiscard]] std::optional<QString> findExecutable(const QStringList& candidates);

/// Holds short conversations with child processes. Main thread only; must outlive its tasks. Its
/// own end waits for no child: those that are ending keep their grace.
class ProcessRunner {
public:
    /// A child that has not ended `grace` after the request to terminate is killed.
    explicit ProcessRunner(platform::Clock& clock,
                           std::chrono::milliseconds grace = std::chrono::seconds{5})
        : m_clock(clock), m_grace(grace) {}
    ~ProcessRunner();
    ProcessRunner(const ProcessRunner&) = delete;
    ProcessRunner& operator=(const ProcessRunner&) = delete;

    /// Starts `executable`, writes `input` to its standard input, which stays open, and gives the
    /// first line of its standard output that is an object whose "id" is 1. The child has this
    /// program's environment and working directory. That it ends says nothing: without a reply
    /// the wait lasts until `timeout`, which
    /// does not count suspended time. What others write to its pipes after its end is not read.
    ///
    /// Whatever comes out, the child and what it started are being ended by then, and outlive this
    /// program by no more than the grace; ChildGuardian says what cannot be found.
    [[nodiscard]] QCoro::Task<CommandReply> requestRateLimits(QString executable,
                                                              QStringList arguments,
                                                              QByteArray input,
                                                              std::chrono::milliseconds timeout);

private:
    platform::Clock& m_clock;
    std::chrono::milliseconds m_grace;
    QObject m_processes; ///< parent of every QProcess until its program has ended
};

} // namespace tallyvane::providers
