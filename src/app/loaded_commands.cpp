#include "app/commands.h"

using namespace tallyvane::app;

ExitCode tallyvaneRunCommand(const CommandLine& commandLine) {
    const Environment environment = readEnvironment();
    switch (commandLine.command) {
    case Command::refresh:
        return runRefresh(environment, commandLine.outputFormat);
    case Command::tokens:
        return runTokens(environment, commandLine.outputFormat);
    case Command::doctor:
        return runDoctor(environment, commandLine.outputFormat, commandLine.isOnline);
    case Command::config:
        return runConfig(environment, commandLine.words);
    default:
        return runStart(environment, commandLine.startMode);
    }
}
