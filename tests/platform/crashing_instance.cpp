/// Owns the program's name on the session bus and crashes when it is asked to refresh.

#include "platform/linux/dbus_application.h"

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace tallyvane::platform;

int main(int argc, char** argv) {
    const QCoreApplication program(argc, argv);
    DBusApplication application(
        []() -> QCoro::Task<DBusApplication::RefreshAnswer> { std::_Exit(1); });
    if (application.registerOnBus() == DBusApplication::Registration::owner) {
        std::puts("owner");
        std::fflush(stdout);
    }
    return QCoreApplication::exec();
}
