#include "app/command_line.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace tallyvane::app {

namespace {

struct CommandName {
    QLatin1StringView name;
    Command command = Command::desktop;
};

constexpr CommandName commands[] = {
    {QLatin1StringView{"refresh"}, Command::refresh},
    {QLatin1StringView{"status"}, Command::status},
    {QLatin1StringView{"history"}, Command::history},
    {QLatin1StringView{"tokens"}, Command::tokens},
};

} // namespace

std::expected<CommandLine, QString> parseCommandLine(const QStringList& arguments) {
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    const QCommandLineOption json(QStringLiteral("json"));
    const QCommandLineOption waybar(QStringLiteral("waybar"));
    const QCommandLineOption background(QStringLiteral("background"));
    QCommandLineParser parser;
    parser.addOptions({help, version, json, waybar, background});
    if (!parser.parse(arguments)) {
        return std::unexpected(parser.errorText());
    }
    if (parser.isSet(help)) {
        return CommandLine{.command = Command::help};
    }
    if (parser.isSet(version)) {
        return CommandLine{.command = Command::version};
    }

    const QStringList words = parser.positionalArguments();
    if (words.size() > 1) {
        return std::unexpected(QStringLiteral("Unexpected argument '%1'.").arg(words[1]));
    }
    CommandLine commandLine;
    if (!words.isEmpty()) {
        const auto known = std::ranges::find(commands, words[0], &CommandName::name);
        if (known == std::end(commands)) {
            return std::unexpected(QStringLiteral("Unknown command '%1'.").arg(words[0]));
        }
        commandLine.command = known->command;
    }

    if (parser.isSet(json) && parser.isSet(waybar)) {
        return std::unexpected(QStringLiteral("--json and --waybar exclude each other."));
    }
    if (parser.isSet(json)) {
        if (commandLine.command == Command::desktop || commandLine.command == Command::refresh) {
            return std::unexpected(
                QStringLiteral("--json goes with 'status', 'history' and 'tokens'."));
        }
        commandLine.outputFormat = OutputFormat::json;
    }
    if (parser.isSet(waybar)) {
        if (commandLine.command != Command::status) {
            return std::unexpected(QStringLiteral("--waybar goes with 'status'."));
        }
        commandLine.outputFormat = OutputFormat::waybar;
    }
    if (parser.isSet(background)) {
        if (commandLine.command != Command::desktop) {
            return std::unexpected(QStringLiteral("--background goes without a command."));
        }
        commandLine.startMode = StartMode::background;
    }
    return commandLine;
}

QString helpText() {
    return QStringLiteral(
        "Usage: tallyvane [command] [options]\n"
        "\n"
        "Shows how much of your Claude Code and Codex quotas is left.\n"
        "\n"
        "Commands:\n"
        "  (none)      Start the desktop program, or show its window when it runs.\n"
        "  refresh     Ask both providers now, store the result and print it.\n"
        "  status      Print the stored result without asking anybody.\n"
        "  history     Print the stored use per day and provider.\n"
        "  tokens      Count the tokens in the local session logs of the last 35 days.\n"
        "\n"
        "Options of commands:\n"
        "  --background  Without a command: start without a window.\n"
        "  --json        With status, history and tokens: print JSON.\n"
        "  --waybar      With status: print one line of JSON for a custom module of Waybar.\n"
        "\n"
        "Options:\n"
        "  -h, --help     Print this help.\n"
        "  -v, --version  Print the version.\n"
        "\n"
        "Exit codes:\n"
        "  0  Done; after refresh: both providers are current.\n"
        "  1  The result could not be stored or printed, or there is no desktop part.\n"
        "  2  The command line was not understood.\n"
        "  3  After refresh: stored, but a provider failed; standard error says why.\n"
        "  4  After status and history: nothing is stored yet.\n"
        "\n"
        "Environment:\n"
        "  NO_COLOR                  When set and not empty, print without colour.\n"
        "  GAUGEWELL_USE_FIXTURES    When 1, status and history show made-up figures.\n"
        "\n"
        "Examples:\n"
        "  tallyvane refresh\n"
        "  tallyvane status --json | jq '.providers[].fiveHour.usedPercent'\n"
        "  tallyvane tokens --json | jq .totals.claude\n"
        "\n"
        "  A module of Waybar:\n"
        "    \"custom/tallyvane\": {\n"
        "      \"exec\": \"tallyvane status --waybar\", \"return-type\": \"json\", \"interval\": "
        "60\n"
        "    }\n");
}

} // namespace tallyvane::app
