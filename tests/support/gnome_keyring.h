#pragma once

#include "support/running_program.h"

namespace tallyvane::tests {

/// A keyring with an unlocked login collection on the bus of the environment.
class GnomeKeyring {
public:
    GnomeKeyring() {
        m_daemon.write("password");
        m_daemon.closeWriteChannel();
    }

    /// Stores a secret under `attribute`, whose value is the service's name; false until the
    /// keyring is up.
    static bool store(const QString& attribute, const QByteArray& secret) {
        RunningProgram tool("secret-tool store --label=test " + attribute.toUtf8() +
                            " 'Claude Code-credentials' account " +
                            QByteArray::number(qHash(secret)));
        tool.write(secret);
        tool.closeWriteChannel();
        return tool.waitForFinished() && tool.exitCode() == 0;
    }

private:
    RunningProgram m_daemon{"gnome-keyring-daemon --foreground --unlock --components=secrets"};
};

} // namespace tallyvane::tests
