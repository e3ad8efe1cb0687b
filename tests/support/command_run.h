#pragma once

#include "support/tallyvane_program.h"

namespace tallyvane::tests {

/// What a run of the program printed; exit code -1 if it crashed or did not end.
struct CommandRun {
    int exitCode = -1;
    QString output;
    QString error;
};

/// Runs a command of the shell in which $0 is the program.
inline CommandRun runShell(const QString& command,
                           const QString& program = QStringLiteral(TALLYVANE_PROGRAM)) {
    RunningProgram shell;
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command, program});
    const bool hasEnded = shell.hasEnded() && shell.exitStatus() == QProcess::NormalExit;
    return {.exitCode = hasEnded ? shell.exitCode() : -1,
            .output = QString::fromUtf8(shell.readAllStandardOutput()),
            .error = QString::fromUtf8(shell.readAllStandardError())};
}

inline CommandRun run(const char* arguments,
                      const QString& program = QStringLiteral(TALLYVANE_PROGRAM)) {
    return runShell(QStringLiteral("exec \"$0\" ") + QLatin1StringView(arguments), program);
}

/// Puts a shell script into the home.
inline void install(const char* path, const char* script) {
    writeFile(inHome(path), QByteArray("#!/bin/sh\n") + script);
}

} // namespace tallyvane::tests
