#pragma once

#include "support/home_files.h"
#include "support/running_program.h"

namespace tallyvane::tests {

/// A session bus of its own, to which this process's environment points while it lives. It starts
/// no services but those described by files in ~/services.
class PrivateBus {
public:
    PrivateBus() {
        const QString configuration = m_directory.filePath(QStringLiteral("configuration"));
        writeFile(configuration,
                  "<busconfig><type>session</type><listen>unix:path=" +
                      m_directory.path().toUtf8() + "/bus</listen><servicedir>" + qgetenv("HOME") +
                      "/services</servicedir><policy context='default'><allow send_destination='*' "
                      "eavesdrop='true'/>"
                      "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + configuration});
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

/// What gdbus prints for a call on the bus of the environment: the reply as GVariant text, or the
/// error. `call` is a method and, quoted for the shell, its arguments.
inline QByteArray callOnBus(const QString& service, const QByteArray& path,
                            const QByteArray& call) {
    return output("gdbus call --session --dest " + service.toUtf8() + " --object-path " + path +
                  " --method " + call + " 2>&1")
        .trimmed();
}

} // namespace tallyvane::tests
