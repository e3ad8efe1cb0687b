/// A program of which one instance runs, as the desktop program is: the first stays and writes what
/// it is asked for, a line each; the others make it show its window and end. The argument is the
/// token that they pass on. A refresh is its end.

#include "platform/linux/dbus_application.h"
#include "platform/linux/termination_signals.h"

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace tallyvane::platform;

namespace {

void say(const QString& line) {
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

QCoro::Task<bool> crash() {
    std::_Exit(1);
    co_return false;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication program(argc, argv);
    const TerminationSignals signals([] {
        say(QStringLiteral("terminated"));
        QCoreApplication::quit();
    });
    DBusApplication application(crash);
    QObject::connect(&application, &DBusApplication::activated,
                     [](const QString& token) { say(QStringLiteral("activated ") + token); });
    QObject::connect(&application, &DBusApplication::refreshRequested,
                     [] { say(QStringLiteral("refresh")); });
    QObject::connect(&application, &DBusApplication::quitRequested, &QCoreApplication::quit);
    switch (application.registerOnBus()) {
    case DBusApplication::Registration::owner:
        say(QStringLiteral("owner"));
        break;
    case DBusApplication::Registration::alreadyRunning:
        return activateRunning(QCoreApplication::arguments().value(1)) ? 0 : 1;
    case DBusApplication::Registration::noBus:
        say(QStringLiteral("no bus"));
        break;
    }
    return QCoreApplication::exec();
}
