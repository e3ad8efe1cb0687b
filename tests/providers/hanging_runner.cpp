// Waits in vain for the reply of the program that its argument names, until it is killed.

#include "platform/linux/boot_clock.h"
#include "providers/process_runner.h"

#include <QtCore/QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    tallyvane::platform::BootClock clock;
    tallyvane::providers::ProcessRunner runner(clock, std::chrono::milliseconds{50});
    const auto task =
        runner.requestRateLimits(QString::fromLocal8Bit(argv[1]), {}, {}, std::chrono::hours{1});
    return QCoreApplication::exec();
}
