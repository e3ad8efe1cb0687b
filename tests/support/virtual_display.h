#pragma once

#include <QtCore/QProcess>

namespace tallyvane::tests {

/// An X server without a screen, to which this process's environment points while it lives.
class VirtualDisplay {
public:
    VirtualDisplay() {
        m_server.setStandardErrorFile(QProcess::nullDevice());
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        // The number of a free display, printed when the server listens.
        QByteArray number;
        while (!number.endsWith('\n')) {
            if (!m_server.waitForReadyRead()) {
                qFatal("Xvfb did not start");
            }
            number += m_server.readAllStandardOutput();
        }
        qputenv("DISPLAY", ':' + number.trimmed());
    }
    ~VirtualDisplay() {
        qunsetenv("DISPLAY");
        m_server.terminate(); // with SIGKILL its lock file would stay
        m_server.waitForFinished();
    }
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    QProcess m_server;
};

} // namespace tallyvane::tests
