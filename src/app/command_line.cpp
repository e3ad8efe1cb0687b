#include "app/command_line.h"

#include "app/usage.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace tallyvane::app {

namespace {

QCommandLineOption parserOption(const OptionUsage& usage) {
    QStringList names{usage.name};
    for (const QChar letter : QString(usage.letters)) {
        names.append(letter);
    }
    return QCommandLineOption(names);
}

/// The parser's complaint, with an unknown option as it was typed.
QString complaint(const QCommandLineParser& parser, const QStringList& arguments) {
    for (const QString& name : parser.unknownOptionNames()) {
        const auto typed = std::ranges::find_if(arguments, [&](const QString& argument) {
            const bool isLong = argument.startsWith(QStringLiteral("--"));
            return isLong ? argument.sliced(2).section(u'=', 0, 0) == name
                          : argument.startsWith(u'-') && argument.contains(name);
        });
        if (typed != arguments.end()) {
            return QStringLiteral("Unknown option '%1'.").arg(*typed);
        }
    }
    return parser.errorText();
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
        return std::unexpected(complaint(parser, arguments));
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return CommandLine{.command = Command::help};
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return CommandLine{.command = Command::version};
    }

    const QStringList words = parser.positionalArguments();
    qsizetype maximumWords = 0;
    CommandLine commandLine;
    if (!words.isEmpty()) {
        const auto known = std::ranges::find(commandUsages, words[0], &CommandUsage::name);
        if (known == std::end(commandUsages)) {
            return std::unexpected(QStringLiteral("Unknown command '%1'.").arg(words[0]));
        }
        commandLine.command = known->command;
        maximumWords = known->maximumWords;
    }
    const QString command = words.value(0);
    commandLine.words = words.sliced(std::min<qsizetype>(words.size(), 1));
    if (commandLine.words.size() > maximumWords) {
        return std::unexpected(
            QStringLiteral("Unexpected argument '%1'.").arg(commandLine.words[maximumWords]));
    }
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
    commandLine.isOnline = parser.isSet(QStringLiteral("online"));
    if (parser.isSet(QStringLiteral("background"))) {
        commandLine.startMode = StartMode::background;
    }
    return commandLine;
}

} // namespace tallyvane::app
