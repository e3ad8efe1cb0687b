#include "providers/process_runner.h"

#include "model/foreign_text.h"
#include "providers/child_guardian.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>

#include <algorithm>
#include <cerrno>

namespace tallyvane::providers {

namespace {

std::unexpected<ProcessRunnerError> launchFailed(const QString& reason) {
    return std::unexpected(
        ProcessRunnerError{ProcessRunnerError::Kind::launchFailed, model::readableText(reason)});
}

/// A child whose output goes to `collector`. The destructor ends it without waiting for it.
class Child {
public:
    Child(const QString& executable, const QStringList& arguments,
          const QProcessEnvironment& environment, const QByteArray& input,
          std::chrono::milliseconds grace, ResponseCollector& collector, QObject& owner)
        : m_process(new QProcess(&owner)) {
        if (!m_guardian.isReady()) {
            collector.finish(launchFailed(qt_error_string(errno)));
            return;
        }
        QProcess* const process = m_process;
        QObject::connect(process, &QProcess::readyReadStandardOutput, process, [=, &collector] {
            collector.appendOutput(process->readAllStandardOutput());
        });
        QObject::connect(process, &QProcess::readyReadStandardError, process, [=, &collector] {
            collector.appendError(process->readAllStandardError());
        });
        QObject::connect(process, &QProcess::started, process, [=] { process->write(input); });
        QObject::connect(process, &QProcess::errorOccurred, process,
                         [=, &collector](QProcess::ProcessError error) {
                             if (error == QProcess::FailedToStart) {
                                 collector.finish(launchFailed(process->errorString()));
                             }
                         });
        m_guardian.guard(*process, grace);
        process->setProcessEnvironment(environment);
        process->start(executable, arguments);
    }

    ~Child() {
        m_process->disconnect();
        m_process->closeReadChannel(QProcess::StandardOutput);
        m_process->closeReadChannel(QProcess::StandardError);
        m_process->closeWriteChannel();
        // ~QProcess would kill a running program and wait for it.
        if (m_process->state() == QProcess::NotRunning) {
            m_process->deleteLater();
        } else {
            QObject::connect(m_process, &QProcess::stateChanged, m_process,
                             [process = m_process](QProcess::ProcessState state) {
                                 if (state == QProcess::NotRunning) {
                                     process->deleteLater();
                                 }
                             });
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

private:
    QProcess* m_process; ///< deletes itself once its program has ended
    ChildGuardian m_guardian;
};

} // namespace

std::optional<QString> findExecutable(const QStringList& candidates) {
    const auto found = std::ranges::find_if(candidates, [](const QString& path) {
        const QFileInfo file(path);
        return file.isFile() && file.isExecutable();
    });
    return found != candidates.end() ? std::optional(*found) : std::nullopt;
}

QProcessEnvironment childEnvironment(QProcessEnvironment environment, const QString& program) {
    const QString variable = QStringLiteral("PATH");
    constexpr auto maximumLinks = 40; // as the kernel has it
    // Without the variable, programs search these.
    QString folders = environment.value(variable, QStringLiteral("/usr/bin:/bin"));
    QString path = program;
    for (int links = 0; links <= maximumLinks && !path.isEmpty(); ++links) {
        folders += (folders.isEmpty() ? QString() : QStringLiteral(":")) + QFileInfo(path).path();
        path = QFile::symLinkTarget(path);
    }
    environment.insert(variable, folders);
    return environment;
}

ProcessRunner::~ProcessRunner() {
    // ~QProcess would kill a running program and wait for it. The guardians end the programs.
    for (QProcess* process : m_processes.findChildren<QProcess*>()) {
        process->setParent(nullptr);
    }
}

QCoro::Task<CommandReply> ProcessRunner::requestRateLimits(QString executable,
                                                           QStringList arguments, QByteArray input,
                                                           std::chrono::milliseconds timeout) {
    ResponseCollector collector;
    const auto giveUp = [&collector] { collector.timeoutFired(); };
    // The child makes no progress while the machine is suspended.
    const auto alarm = m_clock.after(timeout, giveUp, platform::SuspendedTime::doesNotCount);
    const Child child(executable, arguments, childEnvironment(m_environment, executable), input,
                      m_grace, collector, m_processes);
    co_return co_await collector.waitForResult();
}

} // namespace tallyvane::providers
