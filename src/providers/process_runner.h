#pragma once

#include "platform/clock.h"
#include "providers/response_collector.h"

#include <QCoro/QCoroTask>
#include <QtCore/QObject>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

namespace tallyvane::providers {

/// The first of these absolute paths that is a regular file executable by the user.
[[nodiscard]] std::optional<QString> findExecutable(const QStringList& candidates);

/// The environment in which to start the program: `environment` with the folder of the program and
/// those of the programs to which it links appended to PATH. There, launchers of version managers
/// find their interpreter, which the PATH of a desktop session often lacks.
[[nodiscard]] QProcessEnvironment childEnvironment(QProcessEnvironment environment,
                                                   const QString& program);

/// Runs short exchanges with child processes. Main thread only; must outlive its tasks. Its
/// destructor waits for no child; those that are terminating keep their grace period.
class ProcessRunner {
public:
    /// A child that has not ended within `grace` of the request to terminate is killed.
    ProcessRunner(platform::Clock& clock, const QProcessEnvironment& environment,
                  std::chrono::milliseconds grace = std::chrono::seconds{5})
        : m_clock(clock), m_environment(environment), m_grace(grace) {}
    ~ProcessRunner();
    ProcessRunner(const ProcessRunner&) = delete;
    ProcessRunner& operator=(const ProcessRunner&) = delete;

    /// Starts `executable` in its childEnvironment() and the working directory, writes `input`
    /// to its standard input, which stays open, and returns the first line of its standard output
    /// that is an object whose "id" is 1. Waits until `timeout` even if the child exits; suspended
    /// time does not count. Output that others write to its pipes after its exit is not read.
    ///
    /// By then the child and what it started are being terminated; they outlive this program by no
    /// more than the grace period. ChildGuardian documents the exceptions.
    [[nodiscard]] QCoro::Task<CommandReply> requestRateLimits(QString executable,
                                                              QStringList arguments,
                                                              QByteArray input,
                                                              std::chrono::milliseconds timeout);

    /// The first line that the child prints, made readable; empty if it prints none in time. Else
    /// like requestRateLimits(), but ends with the child.
    [[nodiscard]] QCoro::Task<QString> firstLine(QString executable, QStringList arguments,
                                                 std::chrono::milliseconds timeout);

private:
    platform::Clock& m_clock;
    QProcessEnvironment m_environment;
    std::chrono::milliseconds m_grace;
    QObject m_processes; ///< parent of every QProcess whose program is running
};

} // namespace tallyvane::providers
