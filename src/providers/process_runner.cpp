#include "providers/process_runner.h"

#include "model/foreign_text.h"
#include "providers/child_guardian.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QPromise>

#include <algorithm>
#include <cerrno>
#include <functional>

namespace tallyvane::providers {

namespace {

std::unexpected<ProcessRunnerError> launchFailed(const QString& reason) {
    return std::unexpected(
        ProcessRunnerError{ProcessRunnerError::Kind::launchFailed, model::readableText(reason)});
}

/// What to do with what a child prints, and when it ends or cannot be started.
struct Listener {
    std::function<void(const QByteArray& chunk)> output;
    std::function<void(const QByteArray& chunk)> error;
    std::function<void(const QString& reason)> notStarted;
    std::function<void()> ended;
};

/// A child whose output goes to `listener`. The destructor ends it without waiting for it.
class Child {
public:
    Child(const QString& executable, const QStringList& arguments,
          const QProcessEnvironment& environment, const QByteArray& input,
          std::chrono::milliseconds grace, const Listener& listener, QObject& owner)
        : m_process(new QProcess(&owner)) {
        if (!m_guardian.isReady()) {
            listener.notStarted(qt_error_string(errno));
            return;
        }
        QProcess* const process = m_process;
        QObject::connect(process, &QProcess::readyReadStandardOutput, process,
                         [=] { listener.output(process->readAllStandardOutput()); });
        QObject::connect(process, &QProcess::readyReadStandardError, process,
                         [=] { listener.error(process->readAllStandardError()); });
        QObject::connect(process, &QProcess::started, process, [=] { process->write(input); });
        QObject::connect(process, &QProcess::errorOccurred, process,
                         [=](QProcess::ProcessError error) {
                             if (error == QProcess::FailedToStart) {
                                 listener.notStarted(process->errorString());
                             }
                         });
        QObject::connect(process, &QProcess::finished, process, listener.ended);
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
    const Listener listener{
        .output = [&collector](const QByteArray& chunk) { collector.appendOutput(chunk); },
        .error = [&collector](const QByteArray& chunk) { collector.appendError(chunk); },
        .notStarted =
            [&collector](const QString& reason) { collector.finish(launchFailed(reason)); },
        .ended = [] {}};
    const Child child(executable, arguments, childEnvironment(m_environment, executable), input,
                      m_grace, listener, m_processes);
    co_return co_await collector.waitForResult();
}

QCoro::Task<QString> ProcessRunner::firstLine(QString executable, QStringList arguments,
                                              std::chrono::milliseconds timeout) {
    constexpr qsizetype maximumSize = 4096;
    QPromise<QString> promise;
    promise.start();
    const QFuture<QString> line = promise.future();
    QByteArray output;
    const auto finish = [&promise, &output] {
        if (!promise.future().isFinished()) {
            promise.addResult(
                model::readableLine(QString::fromUtf8(output.split('\n').first().trimmed())));
            promise.finish();
        }
    };
    const Listener listener{.output =
                                [&output, finish](const QByteArray& chunk) {
                                    output += chunk.first(
                                        std::min(chunk.size(), maximumSize - output.size()));
                                    if (output.contains('\n') || output.size() == maximumSize) {
                                        finish();
                                    }
                                },
                            .error = [](const QByteArray&) {},
                            .notStarted = [finish](const QString&) { finish(); },
                            .ended = finish};
    const auto alarm = m_clock.after(timeout, finish, platform::SuspendedTime::doesNotCount);
    const Child child(executable, arguments, childEnvironment(m_environment, executable), {},
                      m_grace, listener, m_processes);
    co_return co_await line;
}

} // namespace tallyvane::providers
