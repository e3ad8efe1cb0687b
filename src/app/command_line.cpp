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
        {QLatin1StringView{"csv"}, OutputFormat::csv},
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
    for (const QLatin1StringView choice :
         {QLatin1StringView{"provider"}, QLatin1StringView{"since"}}) {
        if (format == OutputFormat::json && parser.isSet(choice)) {
            return std::unexpected(
                QStringLiteral("--json and --%1 exclude each other.").arg(choice));
        }
    }
    return format;
}

std::expected<std::optional<model::AIProvider>, QString>
chosenProvider(const QCommandLineParser& parser) {
    const QString text = parser.value(QStringLiteral("provider"));
    const auto provider = model::fromRawValue<model::AIProvider>(text);
    if (!provider && parser.isSet(QStringLiteral("provider"))) {
        return std::unexpected(
            QStringLiteral("--provider takes 'codex' or 'claude', not '%1'.").arg(text));
    }
    return provider;
}

std::expected<HistoryChoice, QString> historyChoice(const QCommandLineParser& parser) {
    const auto provider = chosenProvider(parser);
    if (!provider) {
        return std::unexpected(provider.error());
    }
    HistoryChoice choice{.provider = *provider};
    if (parser.isSet(QStringLiteral("since"))) {
        const QString text = parser.value(QStringLiteral("since"));
        const QDate day = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
        if (!day.isValid()) {
            return std::unexpected(
                QStringLiteral("--since takes a day such as '2026-01-31', not '%1'.").arg(text));
        }
        choice.since = day;
    }
    return choice;
}

std::expected<StatusChoice, QString> statusChoice(const QCommandLineParser& parser) {
    const QString format = QStringLiteral("format");
    const QString below = QStringLiteral("below");
    const auto provider = chosenProvider(parser);
    if (!provider) {
        return std::unexpected(provider.error());
    }
    StatusChoice choice{.provider = *provider, .format = parser.value(format)};
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
    if (commandLine.command == Command::history) {
        const auto choice = historyChoice(parser);
        if (!choice) {
            return std::unexpected(choice.error());
        }
        commandLine.history = *choice;
    } else {
        const auto choice = statusChoice(parser);
        if (!choice) {
            return std::unexpected(choice.error());
        }
        commandLine.status = *choice;
    }
    commandLine.isOnline = parser.isSet(QStringLiteral("online"));
    if (parser.isSet(QStringLiteral("background"))) {
        commandLine.startMode = StartMode::background;
    }
    return commandLine;
}

} // namespace tallyvane::app
