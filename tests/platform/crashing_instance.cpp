/// Owns the program's name on the session bus and crashes when it is asked to refresh.

#include "platform/linux/dbus_application.h"

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace tallyvane::platform;

static QCoro::Task<bool> crash() {
    std::_Exit(1);
    co_return false;
}

int main(int argc, char** argv) {
    const QCoreApplication program(argc, argv);
    DBusApplication application(crash);
    if (application.registerOnBus() == DBusApplication::Registration::owner) {
        std::puts("owner");
        std::fflush(stdout);
    }
    return QCoreApplication::exec();
}
