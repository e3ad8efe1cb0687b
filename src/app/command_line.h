#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <expected>

namespace tallyvane::app {

enum class Command { desktop, refresh, status, history, tokens, doctor, config, help, version };
enum class StartMode { withWindow, background };
enum class OutputFormat { text, json, waybar };

/// What the user asked for.
struct CommandLine {
    Command command = Command::desktop;
    OutputFormat outputFormat = OutputFormat::text; ///< waybar only with `status`
    StartMode startMode = StartMode::withWindow;    ///< of the desktop program
    bool isOnline = false;                          ///< with `doctor`: ask the service too
    QStringList words;                              ///< of `config`: what follows the command

    bool operator==(const CommandLine&) const = default;
};

/// Reads the arguments, the program's name first. The error is one line for the user.
[[nodiscard]] std::expected<CommandLine, QString> parseCommandLine(const QStringList& arguments);

} // namespace tallyvane::app
