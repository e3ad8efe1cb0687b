#include "app/commands.h"
#include "app/resource_check.h"
#include "app/usage.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace tallyvane::app {

namespace {

ExitCode run(const CommandLine& commandLine) {
    switch (commandLine.command) {
    case Command::refresh:
        return runRefresh(readEnvironment(), commandLine.outputFormat);
    case Command::status:
        return runStatus(readEnvironment(), commandLine.outputFormat, commandLine.status);
    case Command::pace:
        return runPace(readEnvironment(), commandLine.outputFormat);
    case Command::history:
        return runHistory(readEnvironment(), commandLine.outputFormat, commandLine.history);
    case Command::tokens:
        return runTokens(readEnvironment(), commandLine.outputFormat);
    case Command::doctor:
        return runDoctor(readEnvironment(), commandLine.outputFormat, commandLine.isOnline);
    case Command::config:
        return runConfig(readEnvironment(), commandLine.words);
    case Command::help:
        return print(helpText()) ? ExitCode::success : ExitCode::failure;
    case Command::version:
        return print(QStringLiteral("tallyvane " TALLYVANE_VERSION "\n")) ? ExitCode::success
                                                                          : ExitCode::failure;
    case Command::desktop:
        break;
    }
    return runStart(readEnvironment(), commandLine.startMode);
}

} // namespace

} // namespace tallyvane::app

int main(int argc, char** argv) {
    using namespace tallyvane::app;
    if (!checkResources(commandResources)) {
        return std::to_underlying(ExitCode::failure);
    }
    const QCoreApplication application(argc, argv);
    const auto commandLine = parseCommandLine(QCoreApplication::arguments());
    if (!commandLine) {
        return std::to_underlying(reportMisuse(commandLine.error()));
    }
    endProgram(std::to_underlying(run(*commandLine)));
}
