#pragma once

#include <QtCore/QProcess>

namespace tallyvane::tests {

/// An X server without a screen, to which this process's environment points while it lives.
class VirtualDisplay {
public:
    VirtualDisplay() {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("640x480x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        // The number is printed when the server listens.
        if (!m_server.waitForReadyRead()) {
            qFatal("Xvfb did not start");
        }
        qputenv("DISPLAY", ":" + m_server.readLine().trimmed());
    }
    ~VirtualDisplay() {
        qunsetenv("DISPLAY");
        m_server.terminate();
        m_server.waitForFinished();
    }
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    QProcess m_server;
};

} // namespace tallyvane::tests
