#pragma once

#include "model/quota_snapshot.h"

#include <QtCore/QDate>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <expected>
#include <optional>

namespace tallyvane::app {

enum class Command {
    desktop,
    refresh,
    status,
    pace,
    history,
    tokens,
    doctor,
    config,
    help,
    version
};
enum class StartMode { withWindow, background };
enum class OutputFormat { text, json, csv, waybar, fields };

/// The options of `status` beside its output format.
struct StatusChoice {
    std::optional<model::AIProvider> provider; ///< to show; nullopt: all
    std::optional<int> below;                  ///< fail when fewer percent are left; 0 to 100
    QString format;                            ///< with OutputFormat::fields

    bool operator==(const StatusChoice&) const = default;
};

/// The options of `history` beside its output format.
struct HistoryChoice {
    std::optional<model::AIProvider> provider; ///< to show; nullopt: all
    std::optional<QDate> since;                ///< the first day; nullopt: all

    bool operator==(const HistoryChoice&) const = default;
};

/// What the user asked for.
struct CommandLine {
    Command command = Command::desktop;
    OutputFormat outputFormat =
        OutputFormat::text; ///< `csv` with `history`, the last two with `status`
    StatusChoice status;
    HistoryChoice history;
    StartMode startMode = StartMode::withWindow; ///< of the desktop program
    bool isOnline = false;                       ///< with `doctor`: ask the service too
    QStringList words;                           ///< of `config`: what follows the command

    bool operator==(const CommandLine&) const = default;
};

/// Reads the arguments, the program's name first. The error is one line for the user.
[[nodiscard]] std::expected<CommandLine, QString> parseCommandLine(const QStringList& arguments);

} // namespace tallyvane::app
