#pragma once

#include "support/running_program.h"

namespace tallyvane::tests {

/// An X server without a screen, to which this process's environment points while it lives.
class VirtualDisplay {
public:
    VirtualDisplay() {
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
    ~VirtualDisplay() { qunsetenv("DISPLAY"); }
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    RunningProgram m_server{"Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp"};
};

} // namespace tallyvane::tests
