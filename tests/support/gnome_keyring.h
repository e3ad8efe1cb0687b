#pragma once

#include <QtCore/QProcess>

namespace tallyvane::tests {

/// A keyring with an unlocked login collection on the bus of the environment.
class GnomeKeyring {
public:
    GnomeKeyring() {
        m_daemon.setProcessChannelMode(QProcess::MergedChannels);
        m_daemon.start(QStringLiteral("gnome-keyring-daemon"),
                       {QStringLiteral("--foreground"), QStringLiteral("--unlock"),
                        QStringLiteral("--components=secrets")});
        m_daemon.write("password");
        m_daemon.closeWriteChannel();
    }
    ~GnomeKeyring() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    GnomeKeyring(const GnomeKeyring&) = delete;
    GnomeKeyring& operator=(const GnomeKeyring&) = delete;

    /// Stores a secret under `attribute`, whose value is the service's name; false until the
    /// keyring is up.
    static bool store(const QString& attribute, const QByteArray& secret) {
        QProcess tool;
        tool.start(QStringLiteral("secret-tool"),
                   {QStringLiteral("store"), QStringLiteral("--label=test"), attribute,
                    QStringLiteral("Claude Code-credentials"), QStringLiteral("account"),
                    QString::number(qHash(secret))});
        tool.write(secret);
        tool.closeWriteChannel();
        return tool.waitForFinished() && tool.exitCode() == 0;
    }

private:
    QProcess m_daemon;
};

} // namespace tallyvane::tests
