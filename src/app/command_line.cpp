#include "app/command_line.h"

#include "app/usage.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace tallyvane::app {

namespace {

QCommandLineOption parserOption(const OptionUsage& usage) {
    QStringList names{usage.name};
    if (!usage.letter.isEmpty()) {
        names.append(usage.letter);
    }
    return QCommandLineOption(names);
}

} // namespace

std::expected<CommandLine, QString> parseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    for (const OptionUsage& option : commandOptionUsages) {
        parser.addOption(parserOption(option));
    }
    for (const OptionUsage& option : generalOptionUsages) {
        parser.addOption(parserOption(option));
    }
    if (!parser.parse(arguments)) {
        return std::unexpected(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return CommandLine{.command = Command::help};
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return CommandLine{.command = Command::version};
    }

    const QStringList words = parser.positionalArguments();
    if (words.size() > 1) {
        return std::unexpected(QStringLiteral("Unexpected argument '%1'.").arg(words[1]));
    }
    CommandLine commandLine;
    if (!words.isEmpty()) {
        const auto known = std::ranges::find(commandUsages, words[0], &CommandUsage::name);
        if (known == std::end(commandUsages)) {
            return std::unexpected(QStringLiteral("Unknown command '%1'.").arg(words[0]));
        }
        commandLine.command = known->command;
    }

    const QString command = words.value(0);
    for (const OptionUsage& option : commandOptionUsages) {
        const QString commands = option.commands;
        if (parser.isSet(option.name) && !commands.split(QStringLiteral(", ")).contains(command)) {
            return std::unexpected(QStringLiteral("--%1 goes %2.")
                                       .arg(option.name, commands.isEmpty()
                                                             ? QStringLiteral("without a command")
                                                             : QStringLiteral("with ") + commands));
        }
    }
    const bool json = parser.isSet(QStringLiteral("json"));
    const bool waybar = parser.isSet(QStringLiteral("waybar"));
    if (json && waybar) {
        return std::unexpected(QStringLiteral("--json and --waybar exclude each other."));
    }
    if (json) {
        commandLine.outputFormat = OutputFormat::json;
    } else if (waybar) {
        commandLine.outputFormat = OutputFormat::waybar;
    }
    if (parser.isSet(QStringLiteral("background"))) {
        commandLine.startMode = StartMode::background;
    }
    return commandLine;
}

} // namespace tallyvane::app
