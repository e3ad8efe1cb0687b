#pragma once

#include "support/home_files.h"

#include <QtCore/QProcess>

namespace tallyvane::tests {

/// In milliseconds, for programs that start on a busy machine.
inline constexpr int patience = 30000;

/// Writes a file of the test's home, which its owner may run.
inline void writeToHome(const QString& name, const QByteArray& content) {
    writeFile(QDir::home().filePath(name), content);
}

/// Removes what the program, its settings and writeToHome() have left in the test's home.
inline void clearHome() {
    for (const char* folder : {"data", "config", ".local"}) {
        QDir(QDir::home().filePath(QLatin1String(folder))).removeRecursively();
    }
}

/// Lets `codex` answer with this five-hour figure, after running `before`.
inline void installCodex(double usedPercent, const QByteArray& before = {}) {
    writeToHome(QStringLiteral(".local/bin/codex"),
                "#!/bin/sh\n" + before +
                    "\necho '{\"id\":1,\"result\":{\"rateLimits\":{\"planType\":\"plus\","
                    "\"primary\":{\"usedPercent\":" +
                    QByteArray::number(usedPercent) +
                    "},\"secondary\":{\"usedPercent\":17}}}}'\ncat\n");
}

/// The program, as users and their desktop start it.
struct TallyvaneProgram : QProcess {
    explicit TallyvaneProgram(const QStringList& arguments = {},
                              const QString& program = QStringLiteral(TALLYVANE_PROGRAM)) {
        start(program, arguments);
    }
    ~TallyvaneProgram() override { end(); }
    TallyvaneProgram(const TallyvaneProgram&) = delete;
    TallyvaneProgram& operator=(const TallyvaneProgram&) = delete;

    /// Returns what it complained of, all the while.
    QByteArray end() {
        terminate();
        waitForFinished(patience);
        return readAllStandardError();
    }
};

} // namespace tallyvane::tests
