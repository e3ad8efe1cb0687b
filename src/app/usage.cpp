#include "app/usage.h"

#include <algorithm>
#include <span>

namespace tallyvane::app {

namespace {

constexpr qsizetype columns = 80;

QString joined(const QString& term, QLatin1StringView value) {
    return value.isEmpty() ? term : term + u' ' + value;
}

UsageSection optionSection(const QString& heading, std::span<const OptionUsage> options) {
    UsageSection section{.heading = heading};
    for (const OptionUsage& option : options) {
        QString term;
        for (const QChar letter : QString(option.letters)) {
            term += QStringLiteral("-%1, ").arg(letter);
        }
        term += QStringLiteral("--") + option.name;
        section.entries.append({joined(term, option.value), option.text});
    }
    return section;
}

/// Breaks the text into lines of at most `width` characters, the further ones indented.
QString wrapped(const QString& text, qsizetype width, qsizetype indent) {
    QString lines;
    qsizetype column = 0;
    for (const QString& word : text.split(u' ')) {
        if (column > 0 && column + 1 + word.size() > width) {
            lines += u'\n' + QString(indent, u' ');
            column = 0;
        }
        lines = column > 0 ? lines + u' ' + word : lines + word;
        column += word.size() + (column > 0 ? 1 : 0);
    }
    return lines;
}

} // namespace

QList<UsageSection> usageSections() {
    UsageSection commands{QStringLiteral("Commands"),
                          {{QStringLiteral("(none)"),
                            QStringLiteral("Start the desktop program, or show its window when it "
                                           "runs.")}}};
    for (const CommandUsage& command : commandUsages) {
        commands.entries.append({command.name, command.text});
    }
    UsageSection configWords{QStringLiteral("Words of config")};
    for (const ConfigWordUsage& word : configWordUsages) {
        configWords.entries.append({joined(word.name, word.arguments), word.text});
    }
    UsageSection settings{QStringLiteral("Settings of config")};
    for (const SettingUsage& setting : settingUsages) {
        settings.entries.append({setting.key, setting.text});
    }
    return {
        commands,
        optionSection(QStringLiteral("Options of commands"), commandOptionUsages),
        optionSection(QStringLiteral("Options"), generalOptionUsages),
        {QStringLiteral("Fields of a format"),
         {{QStringLiteral("{lowest}"),
           QStringLiteral("The lowest percentage left of the five-hour windows shown.")},
          {QStringLiteral("{codex.fiveHour}"),
           QStringLiteral("The percentage left of a window; for Claude with claude in place of "
                          "codex, as in all fields.")},
          {QStringLiteral("{codex.fiveHour.reset}"), QStringLiteral("When that window resets.")},
          {QStringLiteral("{codex.fiveHour.pace}"),
           QStringLiteral("How many percentage points more than at an even use are left, or with "
                          "a minus sign less.")},
          {QStringLiteral("{codex.fiveHour.runsOut}"),
           QStringLiteral("When the quota runs out at this pace, if that is before its reset.")},
          {QStringLiteral("{codex.week}"), QStringLiteral("The same for the weekly window.")},
          {QStringLiteral("{codex.week.reset}, {codex.week.pace}, {codex.week.runsOut}"),
           QStringLiteral("The same for the weekly window.")},
          {QStringLiteral("{codex.plan}"),
           QStringLiteral("The plan's name, without characters that status bars interpret.")},
          {QStringLiteral("{codex.state}"),
           QStringLiteral("One of current, pending and unavailable.")},
          {QStringLiteral("{updated}"), QStringLiteral("The age of the stored result.")},
          {QStringLiteral("{{, }}"), QStringLiteral("A brace.")},
          {QStringLiteral("-"),
           QStringLiteral("Printed in place of what is not known or not shown.")}}},
        configWords,
        settings,
        {QStringLiteral("Exit status"),
         {{QStringLiteral("0"), QStringLiteral("Done; after refresh: both providers are current.")},
          {QStringLiteral("1"), QStringLiteral("The result could not be stored or printed, or "
                                               "there is no desktop part; with --below: the "
                                               "figure is lower.")},
          {QStringLiteral("2"), QStringLiteral("The command line was not understood.")},
          {QStringLiteral("3"),
           QStringLiteral("After refresh: stored, but a provider failed; standard error says why. "
                          "After doctor: a refresh would not work.")},
          {QStringLiteral("4"),
           QStringLiteral("After status, pace and history: nothing is stored yet; with --below: no "
                          "figure is known.")}}},
        {QStringLiteral("Environment"),
         {{QStringLiteral("NO_COLOR"),
           QStringLiteral("When set and not empty, print without colour.")},
          {QStringLiteral("CLICOLOR_FORCE"),
           QStringLiteral("When set, not empty and not 0, print colour even where there is no "
                          "terminal. NO_COLOR wins over it.")},
          {QStringLiteral("TERM"),
           QStringLiteral("When dumb, print without colour and without a line of progress, unless "
                          "CLICOLOR_FORCE asks for colour.")},
          {QStringLiteral("GAUGEWELL_USE_FIXTURES"),
           QStringLiteral("When 1, status, pace and history show made-up figures.")}}},
        {QStringLiteral("Examples"),
         {{{}, QStringLiteral("tallyvane refresh")},
          {{}, QStringLiteral("tallyvane status --json | jq '.providers[].fiveHour.usedPercent'")},
          {{}, QStringLiteral("tallyvane status --format '{codex.fiveHour}% {claude.fiveHour}%'")},
          {{}, QStringLiteral("tallyvane status --provider claude --below 10")},
          {{}, QStringLiteral("tallyvane history --csv --since 2026-01-31 >use.csv")},
          {{}, QStringLiteral("tallyvane tokens --json | jq .totals.claude")}}},
    };
}

QString helpText() {
    QString text = QStringLiteral("Usage: tallyvane [command] [options]\n"
                                  "\n"
                                  "Shows how much of your Claude Code and Codex quotas is left.\n");
    for (const UsageSection& section : usageSections()) {
        text += QStringLiteral("\n%1:\n").arg(section.heading);
        qsizetype width = 0;
        for (const UsageEntry& entry : section.entries) {
            width = std::max(width, entry.term.size());
        }
        for (const UsageEntry& entry : section.entries) {
            text += QStringLiteral("  ");
            text += entry.term.isEmpty() ? entry.term : entry.term.leftJustified(width + 2);
            text += entry.term.isEmpty() ? entry.text
                                         : wrapped(entry.text, columns - width - 4, width + 4);
            text += u'\n';
        }
    }
    return text;
}

} // namespace tallyvane::app
