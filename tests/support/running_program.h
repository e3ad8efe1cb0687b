#pragma once

#include "support/test_main.h"

#include <QtCore/QProcess>

#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>
#include <utility>

namespace tallyvane::tests {

/// A child process that ends with this object, or with the test should that die first. What is
/// still in its process group ends with this object too.
class RunningProgram : public QProcess {
public:
    /// start() starts the program.
    RunningProgram() {
        setChildProcessModifier([] {
            ::setpgid(0, 0);
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        });
        connect(this, &QProcess::started, this,
                [this] { m_group = static_cast<pid_t>(processId()); });
    }
    /// Runs a simple command of the shell and drops its standard error.
    explicit RunningProgram(const QByteArray& command) : RunningProgram() {
        setStandardErrorFile(nullDevice());
        start(QStringLiteral("/bin/sh"),
              {QStringLiteral("-c"), QString::fromUtf8("exec " + command)});
    }
    ~RunningProgram() override { end(); }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Waits until the program ends by itself, while the event loop runs.
    [[nodiscard]] bool hasEnded() const {
        return QTest::qWaitFor([this] { return state() == NotRunning; }, patience);
    }

    void end() {
        terminate(); // Xvfb, if killed, leaves its lock file behind
        waitForFinished(patience / 3);
        if (m_group > 0) {
            ::kill(-std::exchange(m_group, 0), SIGKILL);
        }
        waitForFinished();
    }

private:
    pid_t m_group = 0;
};

/// What a command of the shell prints; empty when it does not end. The event loop runs meanwhile.
inline QByteArray output(const QByteArray& command) {
    RunningProgram program(command);
    return program.hasEnded() ? program.readAllStandardOutput() : QByteArray();
}

} // namespace tallyvane::tests
