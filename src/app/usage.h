#pragma once

#include "app/command_line.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace tallyvane::app {

// The command line's vocabulary, from which the parser takes its names and from which --help, the
// manual page and the shell completions are generated.

struct CommandUsage {
    QLatin1StringView name;
    QLatin1StringView text;
    Command command = Command::desktop;
    qsizetype maximumWords = 0;   ///< that may follow the name
    QLatin1StringView words = {}; ///< how --help writes them
};

struct OptionUsage {
    QLatin1StringView name;     ///< without dashes
    QLatin1StringView text;     ///< no quotation marks or brackets, which shells interpret
    QLatin1StringView commands; ///< that accept it, as "a, b"; empty: only without a command
    QLatin1StringView letters;  ///< the short forms; may be empty
};

inline constexpr CommandUsage commandUsages[] = {
    {QLatin1StringView{"refresh"},
     QLatin1StringView{"Ask both providers now, store the result and print it."}, Command::refresh},
    {QLatin1StringView{"status"},
     QLatin1StringView{"Print the stored result without asking anybody."}, Command::status},
    {QLatin1StringView{"history"}, QLatin1StringView{"Print the stored use per day and provider."},
     Command::history},
    {QLatin1StringView{"tokens"},
     QLatin1StringView{"Count the tokens in the local session logs of the last 35 days."},
     Command::tokens},
    {QLatin1StringView{"doctor"},
     QLatin1StringView{"Check all that figures depend on, and say what to do about each fault."},
     Command::doctor},
    {QLatin1StringView{"config"},
     QLatin1StringView{"Show or change the settings; a running program takes the change at once."},
     Command::config, 3, QLatin1StringView{"list, get KEY, set KEY VALUE, unset KEY"}},
    {QLatin1StringView{"help"}, QLatin1StringView{"Print this help."}, Command::help},
    {QLatin1StringView{"version"}, QLatin1StringView{"Print the version."}, Command::version},
};

inline constexpr OptionUsage commandOptionUsages[] = {
    {.name = QLatin1StringView{"background"},
     .text = QLatin1StringView{"Without a command: start without a window."}},
    {.name = QLatin1StringView{"json"},
     .text = QLatin1StringView{"With these commands: print JSON."},
     .commands = QLatin1StringView{"refresh, status, history, tokens, doctor"}},
    {.name = QLatin1StringView{"online"},
     .text = QLatin1StringView{"With doctor: send one request to the Claude service too."},
     .commands = QLatin1StringView{"doctor"}},
    {.name = QLatin1StringView{"waybar"},
     .text =
         QLatin1StringView{"With status: print one line of JSON for a custom module of Waybar."},
     .commands = QLatin1StringView{"status"}},
};

/// Accepted with every command.
inline constexpr OptionUsage generalOptionUsages[] = {
    {.name = QLatin1StringView{"help"},
     .text = QLatin1StringView{"Print this help."},
     .letters = QLatin1StringView{"h"}},
    {.name = QLatin1StringView{"version"},
     .text = QLatin1StringView{"Print the version."},
     .letters = QLatin1StringView{"vV"}},
};

/// A term and its meaning, or without a term a literal line.
struct UsageEntry {
    QString term;
    QString text;
};

struct UsageSection {
    QString heading;
    QList<UsageEntry> entries;
};

[[nodiscard]] QList<UsageSection> usageSections();

/// What --help prints.
[[nodiscard]] QString helpText();

} // namespace tallyvane::app
