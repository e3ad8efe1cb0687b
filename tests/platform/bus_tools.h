#pragma once

#include "support/private_bus.h"

namespace tallyvane::tests {

/// A property of the status item of the program with this name on the bus, as callOnBus() prints
/// it.
inline QByteArray itemProperty(const QString& service, const QByteArray& name) {
    return callOnBus(service, "/StatusNotifierItem",
                     "org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem " + name);
}

/// Hears the signals of all objects of the program with this name on the bus.
class SignalMonitor {
public:
    explicit SignalMonitor(const QString& service)
        : m_gdbus("gdbus monitor --session --dest " + service.toUtf8()) {
        heard("is owned by"); // it is listening
    }

    /// The signals since the last call as gdbus prints them, without the object, up to one that
    /// contains `last`.
    QByteArrayList heard(const char* last) {
        QByteArrayList lines;
        const bool isComplete = QTest::qWaitFor([&] {
            while (m_gdbus.canReadLine()) {
                const QByteArray line = m_gdbus.readLine().trimmed();
                lines << line.sliced(line.indexOf(' ') + 1);
            }
            return !lines.isEmpty() && lines.constLast().contains(last);
        });
        return isComplete ? lines : QByteArrayList{"timeout"};
    }

private:
    RunningProgram m_gdbus;
};

} // namespace tallyvane::tests
