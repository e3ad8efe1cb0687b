#pragma once

#include "app/command_line.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <algorithm>

namespace tallyvane::app {

// The command line's vocabulary, from which the parser takes its names and from which --help, the
// manual page and the shell completions are generated.

struct CommandUsage {
    QLatin1StringView name;
    QLatin1StringView text;
    Command command = Command::desktop;
    qsizetype maximumWords = 0; ///< that may follow the name
};

struct OptionUsage {
    QLatin1StringView name;     ///< without dashes
    QLatin1StringView text;     ///< no quotation marks or brackets, which shells interpret
    QLatin1StringView commands; ///< that accept it, as "a, b"; empty: only without a command
    QLatin1StringView letters;  ///< the short forms; may be empty
    QLatin1StringView value;    ///< what follows the option, as in "NAME"; may be empty
    QLatin1StringView values;   ///< that completions offer, as "a, b"; may be empty
};

/// A word that follows `config`.
struct ConfigWordUsage {
    QLatin1StringView name;
    QLatin1StringView arguments; ///< such as "KEY VALUE"
    QLatin1StringView text;

    [[nodiscard]] constexpr qsizetype argumentCount() const {
        return arguments.isEmpty() ? 0 : std::ranges::count(arguments, u' ') + 1;
    }
};

struct SettingUsage {
    QLatin1StringView key;
    QLatin1StringView text;   ///< what a value looks like
    QLatin1StringView values; ///< that completions offer, as "a, b"; empty: names of files
};

inline constexpr CommandUsage commandUsages[] = {
    {QLatin1StringView{"refresh"},
     QLatin1StringView{"Ask both providers now, store the result and print it."}, Command::refresh},
    {QLatin1StringView{"status"},
     QLatin1StringView{"Print the stored result without asking anybody."}, Command::status},
    {QLatin1StringView{"pace"},
     QLatin1StringView{"Print how the use compares with an even one, and what lasts until its "
                       "reset."},
     Command::pace},
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
     Command::config, 3},
    {QLatin1StringView{"help"}, QLatin1StringView{"Print this help."}, Command::help},
    {QLatin1StringView{"version"}, QLatin1StringView{"Print the version."}, Command::version},
};

inline constexpr OptionUsage commandOptionUsages[] = {
    {.name = QLatin1StringView{"background"},
     .text = QLatin1StringView{"Without a command: start without a window."}},
    {.name = QLatin1StringView{"json"},
     .text = QLatin1StringView{"With these commands: print JSON."},
     .commands = QLatin1StringView{"refresh, status, pace, history, tokens, doctor"}},
    {.name = QLatin1StringView{"online"},
     .text = QLatin1StringView{"With doctor: send one request to the Claude service too."},
     .commands = QLatin1StringView{"doctor"}},
    {.name = QLatin1StringView{"provider"},
     .text = QLatin1StringView{"With status and history: show this provider alone, codex or "
                               "claude, even if it is hidden."},
     .commands = QLatin1StringView{"status, history"},
     .value = QLatin1StringView{"NAME"},
     .values = QLatin1StringView{"codex, claude"}},
    {.name = QLatin1StringView{"csv"},
     .text = QLatin1StringView{"With history: print comma-separated values."},
     .commands = QLatin1StringView{"history"}},
    {.name = QLatin1StringView{"since"},
     .text = QLatin1StringView{"With history: leave out what is before DAY, such as 2026-01-31."},
     .commands = QLatin1StringView{"history"},
     .value = QLatin1StringView{"DAY"}},
    {.name = QLatin1StringView{"below"},
     .text = QLatin1StringView{"With status: exit with 1 when the lowest five-hour percentage left "
                               "is under N, 0 to 100."},
     .commands = QLatin1StringView{"status"},
     .value = QLatin1StringView{"N"}},
    {.name = QLatin1StringView{"format"},
     .text = QLatin1StringView{"With status: print one line of TEXT, in which fields stand for "
                               "figures."},
     .commands = QLatin1StringView{"status"},
     .value = QLatin1StringView{"TEXT"}},
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

inline constexpr ConfigWordUsage configWordUsages[] = {
    {QLatin1StringView{"list"}, {}, QLatin1StringView{"Print all settings."}},
    {QLatin1StringView{"get"}, QLatin1StringView{"KEY"}, QLatin1StringView{"Print one."}},
    {QLatin1StringView{"set"}, QLatin1StringView{"KEY VALUE"}, QLatin1StringView{"Change it."}},
    {QLatin1StringView{"unset"}, QLatin1StringView{"KEY"},
     QLatin1StringView{"Return it to what it was at first."}},
};

inline constexpr SettingUsage appearanceSetting{QLatin1StringView{"appearance"},
                                                QLatin1StringView{"system, light or dark"},
                                                QLatin1StringView{"system, light, dark"}};
inline constexpr SettingUsage providersSetting{
    QLatin1StringView{"providers"},
    QLatin1StringView{"both, or codex or claude, to hide the other everywhere"},
    QLatin1StringView{"both, codex, claude"}};
inline constexpr SettingUsage launchAtLoginSetting{QLatin1StringView{"launch-at-login"},
                                                   QLatin1StringView{"on or off"},
                                                   QLatin1StringView{"on, off"}};
inline constexpr SettingUsage notificationsSetting{QLatin1StringView{"notifications"},
                                                   QLatin1StringView{"on or off"},
                                                   QLatin1StringView{"on, off"}};
inline constexpr SettingUsage notificationWindowsSetting{
    QLatin1StringView{"notification-windows"},
    QLatin1StringView{"none, or times such as 09:00-18:00 and all-day separated by commas, each "
                      "with off before it while not in use"},
    QLatin1StringView{"none, all-day"}};
inline constexpr SettingUsage lowQuotaSetting{QLatin1StringView{"low-quota-notifications"},
                                              QLatin1StringView{"on or off"},
                                              QLatin1StringView{"on, off"}};
inline constexpr SettingUsage codexPathSetting{
    QLatin1StringView{"codex-path"},
    QLatin1StringView{"the path of the Codex CLI, or nothing, to have it looked for"},
    {}};
inline constexpr SettingUsage settingUsages[] = {
    appearanceSetting,          providersSetting, launchAtLoginSetting, notificationsSetting,
    notificationWindowsSetting, lowQuotaSetting,  codexPathSetting};

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

/// What --help prints, within 80 columns.
[[nodiscard]] QString helpText();

} // namespace tallyvane::app
