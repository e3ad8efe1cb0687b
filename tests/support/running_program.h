#pragma once

#include <QtCore/QProcess>
#include <QtTest/QTest>

namespace tallyvane::tests {

/// A program that runs as long as this object lives; what it complains of is not ours.
class RunningProgram {
public:
    /// `command` is a simple command of the shell.
    explicit RunningProgram(const QByteArray& command) {
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(QStringLiteral("/bin/sh"),
                      {QStringLiteral("-c"), QString::fromUtf8("exec " + command)});
    }
    ~RunningProgram() {
        process.terminate();
        if (!process.waitForFinished(5000)) {
            process.kill();
            process.waitForFinished();
        }
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    QProcess process;
};

/// What a command of the shell prints. The event loop runs meanwhile.
inline QByteArray output(const QByteArray& command) {
    RunningProgram program(command);
    const bool hasEnded = QTest::qWaitFor(
        [&program] { return program.process.state() == QProcess::NotRunning; }, 30000);
    return hasEnded ? program.process.readAllStandardOutput() : QByteArray();
}

} // namespace tallyvane::tests
