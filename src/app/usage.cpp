#include "app/usage.h"

#include <algorithm>
#include <span>

namespace tallyvane::app {

namespace {

UsageSection optionSection(const QString& heading, std::span<const OptionUsage> options) {
    UsageSection section{.heading = heading};
    for (const OptionUsage& option : options) {
        QString term;
        for (const QChar letter : QString(option.letters)) {
            term += QStringLiteral("-%1, ").arg(letter);
        }
        section.entries.append({QStringLiteral("%1--%2").arg(term, option.name), option.text});
    }
    return section;
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
    return {
        commands,
        optionSection(QStringLiteral("Options of commands"), commandOptionUsages),
        optionSection(QStringLiteral("Options"), generalOptionUsages),
        {QStringLiteral("Exit status"),
         {{QStringLiteral("0"), QStringLiteral("Done; after refresh: both providers are current.")},
          {QStringLiteral("1"), QStringLiteral("The result could not be stored or printed, or "
                                               "there is no desktop part.")},
          {QStringLiteral("2"), QStringLiteral("The command line was not understood.")},
          {QStringLiteral("3"), QStringLiteral("After refresh: stored, but a provider failed; "
                                               "standard error says why.")},
          {QStringLiteral("4"),
           QStringLiteral("After status and history: nothing is stored yet.")}}},
        {QStringLiteral("Environment"),
         {{QStringLiteral("NO_COLOR"),
           QStringLiteral("When set and not empty, print without colour.")},
          {QStringLiteral("GAUGEWELL_USE_FIXTURES"),
           QStringLiteral("When 1, status and history show made-up figures.")}}},
        {QStringLiteral("Examples"),
         {{{}, QStringLiteral("tallyvane refresh")},
          {{}, QStringLiteral("tallyvane status --json | jq '.providers[].fiveHour.usedPercent'")},
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
            text += entry.text + u'\n';
        }
    }
    return text;
}

} // namespace tallyvane::app
