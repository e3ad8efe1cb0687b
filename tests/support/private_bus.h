#pragma once

#include "support/running_program.h"

namespace tallyvane::tests {

/// A session bus of its own, to which this process's environment points while it lives. It starts
/// no services but those described by files in ~/services.
class PrivateBus {
public:
    PrivateBus() {
        QFile configuration(m_directory.filePath(QStringLiteral("configuration")));
        configuration.open(QIODevice::WriteOnly);
        configuration.write(
            "<busconfig><type>session</type><listen>unix:path=" + m_directory.path().toUtf8() +
            "/bus</listen><servicedir>" + qgetenv("HOME") +
            "/services</servicedir><limit name='max_replies_per_connection'>50000</limit><policy "
            "context='default'><allow send_destination='*' eavesdrop='true'/>"
            "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
        configuration.close();
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + configuration.fileName()});
        // The address is printed when the bus listens.
        if (!m_daemon.waitForReadyRead()) {
            qFatal("dbus-daemon did not start");
        }
        m_address = m_daemon.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address);
    }

    /// For QtDBus, which reads the environment only once.
    [[nodiscard]] QString address() const { return QString::fromUtf8(m_address); }

private:
    QTemporaryDir m_directory;
    RunningProgram m_daemon;
    QByteArray m_address;
};

} // namespace tallyvane::tests
