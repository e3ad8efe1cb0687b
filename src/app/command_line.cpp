#include "app/command_line.h"

#include "app/usage.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tallyvane::app {

namespace {

QCommandLineOption parserOption(const OptionUsage& usage) {
    QStringList names{usage.name};
    for (const QChar letter : QString(usage.letters)) {
        names.append(letter);
    }
    return QCommandLineOption(names, {}, usage.value);
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

std::expected<OutputFormat, QString> outputFormat(const QCommandLineParser& parser) {
    constexpr std::pair<QLatin1StringView, OutputFormat> formats[] = {
        {QLatin1StringView{"json"}, OutputFormat::json},
        {QLatin1StringView{"waybar"}, OutputFormat::waybar},
        {QLatin1StringView{"format"}, OutputFormat::fields}};
    QLatin1StringView chosen;
    OutputFormat format = OutputFormat::text;
    for (const auto& [name, value] : formats) {
        if (!parser.isSet(name)) {
            continue;
        }
        if (!chosen.isEmpty()) {
            return std::unexpected(
                QStringLiteral("--%1 and --%2 exclude each other.").arg(chosen, name));
        }
        chosen = name;
        format = value;
    }
    if (format == OutputFormat::json && parser.isSet(QStringLiteral("provider"))) {
        return std::unexpected(QStringLiteral("--json and --provider exclude each other."));
    }
    return format;
}

std::expected<StatusChoice, QString> statusChoice(const QCommandLineParser& parser) {
    const QString format = QStringLiteral("format");
    const QString provider = QStringLiteral("provider");
    const QString below = QStringLiteral("below");
    StatusChoice choice{.format = parser.value(format)};
    if (parser.isSet(provider)) {
        choice.provider = model::fromRawValue<model::AIProvider>(parser.value(provider));
        if (!choice.provider) {
            return std::unexpected(QStringLiteral("--provider takes 'codex' or 'claude', not '%1'.")
                                       .arg(parser.value(provider)));
        }
    }
    if (parser.isSet(below)) {
        bool isNumber = false;
        choice.below = parser.value(below).toInt(&isNumber);
        if (!isNumber || *choice.below < 0 || *choice.below > 100) {
            return std::unexpected(QStringLiteral("--below takes a number from 0 to 100, not '%1'.")
                                       .arg(parser.value(below)));
        }
    }
    return choice;
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
    const auto format = outputFormat(parser);
    if (!format) {
        return std::unexpected(format.error());
    }
    commandLine.outputFormat = *format;
    const auto choice = statusChoice(parser);
    if (!choice) {
        return std::unexpected(choice.error());
    }
    commandLine.status = *choice;
    commandLine.isOnline = parser.isSet(QStringLiteral("online"));
    if (parser.isSet(QStringLiteral("background"))) {
        commandLine.startMode = StartMode::background;
    }
    return commandLine;
}

} // namespace tallyvane::app
