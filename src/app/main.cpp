#include "app/commands.h"
#include "app/late_library.h"
#include "app/resource_check.h"
#include "app/usage.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace tallyvane::app {

namespace {

/// A command of the library that the programs share. Returns only if that cannot be loaded: without
/// its destructor, the application does not wait for threads, such as one that looks up a name.
ExitCode runLoaded(const CommandLine& commandLine, int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const LateLibrary library("libtallyvane-program.so");
    const auto function = library.function("tallyvaneRunCommand");
    if (!function) {
        printError(
            QStringLiteral("A part of the program could not be loaded: %1").arg(function.error()));
        return ExitCode::failure;
    }
    endProgram(std::to_underlying(
        reinterpret_cast<decltype(&tallyvaneRunCommand)>(*function)(commandLine)));
}

/// The commands that panels and scripts run every minute need neither the library nor the session
/// bus.
ExitCode run(const CommandLine& commandLine, int argc, char** argv) {
    switch (commandLine.command) {
    case Command::status:
        return runStatus(readEnvironment(), commandLine.outputFormat, commandLine.status);
    case Command::pace:
        return runPace(readEnvironment(), commandLine.outputFormat);
    case Command::history:
        return runHistory(readEnvironment(), commandLine.outputFormat, commandLine.history);
    case Command::help:
        return print(helpText()) ? ExitCode::success : ExitCode::failure;
    case Command::version:
        return print(QStringLiteral("tallyvane " TALLYVANE_VERSION "\n")) ? ExitCode::success
                                                                          : ExitCode::failure;
    default:
        return runLoaded(commandLine, argc, argv);
    }
}

} // namespace

} // namespace tallyvane::app

int main(int argc, char** argv) {
    using namespace tallyvane::app;
    if (!checkResources(commandResources)) {
        return std::to_underlying(ExitCode::failure);
    }
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const auto commandLine = parseCommandLine(arguments);
    if (!commandLine) {
        return std::to_underlying(reportMisuse(commandLine.error()));
    }
    endProgram(std::to_underlying(run(*commandLine, argc, argv)));
}
