// Writes the manual page or the completions of a shell to standard output, made from the words of
// --help. Usage: make_documents manual TEMPLATE | bash | zsh | fish

#include "app/usage.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

#include <algorithm>
#include <cstdio>
#include <iterator>

using namespace tallyvane::app;

namespace {

// Hyphens stay hyphens, so that what is copied from the page can be typed.
QString roff(QString text) {
    text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    return text.startsWith(u'.') || text.startsWith(u'\'') ? QStringLiteral("\\&") + text : text;
}

QString manualSection(const UsageSection& section) {
    QString text = QStringLiteral(".SH %1\n").arg(section.heading.toUpper());
    for (const UsageEntry& entry : section.entries) {
        text += entry.term.isEmpty()
                    ? QStringLiteral(".EX\n%1\n.EE\n").arg(roff(entry.text))
                    : QStringLiteral(".TP\n.B %1\n%2\n").arg(roff(entry.term), roff(entry.text));
    }
    return text;
}

/// The template, with each line "{Heading}" replaced by that section.
QString manual(const QString& templateText) {
    QString text = templateText;
    for (const UsageSection& section : usageSections()) {
        text.replace(QStringLiteral("{%1}\n").arg(section.heading), manualSection(section));
    }
    return text;
}

/// The options of a command, or without one for an empty name, apart from those of all.
QList<OptionUsage> optionsOf(const QString& command) {
    QList<OptionUsage> options;
    std::ranges::copy_if(
        commandOptionUsages, std::back_inserter(options), [&](const OptionUsage& option) {
            return QString(option.commands).split(QStringLiteral(", ")).contains(command);
        });
    return options;
}

/// Each short form after `prefix`, such as "-h".
QString shortForms(const OptionUsage& option, const QString& prefix, const QString& after) {
    QString text;
    for (const QChar letter : QString(option.letters)) {
        text += prefix + letter + after;
    }
    return text;
}

QStringList commandNames() {
    QStringList names;
    std::ranges::transform(commandUsages, std::back_inserter(names), &CommandUsage::name);
    return names;
}

/// The last is empty: no command.
QStringList commandNamesAndNone() {
    return commandNames() << QString();
}

QString bash() {
    QString cases;
    for (const QString& command : commandNamesAndNone()) {
        QStringList words = command.isEmpty() ? commandNames() : QStringList();
        for (const OptionUsage& option : optionsOf(command)) {
            words.append(QStringLiteral("--") + option.name);
        }
        for (const OptionUsage& option : generalOptionUsages) {
            words.append(QStringLiteral("--") + option.name);
        }
        cases += QStringLiteral("    %1) words='%2' ;;\n")
                     .arg(command.isEmpty() ? QStringLiteral("*") : command, words.join(u' '));
    }
    return QStringLiteral(R"(# bash completion for tallyvane
_tallyvane() {
    local word command='' words
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == -* ]] || command=$word
    done
    case $command in
%1    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -F _tallyvane tallyvane
)")
        .arg(cases);
}

QString zsh() {
    QString commands;
    for (const CommandUsage& command : commandUsages) {
        commands += QStringLiteral("    '%1:%2'\n").arg(command.name, command.text);
    }
    QString general;
    for (const OptionUsage& option : generalOptionUsages) {
        general += QStringLiteral("    '(- *)'{%1--%2}'[%3]'\n")
                       .arg(shortForms(option, QStringLiteral("-"), QStringLiteral(",")),
                            option.name, option.text);
    }
    QString cases;
    for (const QString& command : commandNamesAndNone()) {
        cases += QStringLiteral("%1)\n").arg(command.isEmpty() ? QStringLiteral("*") : command);
        for (const OptionUsage& option : optionsOf(command)) {
            cases += QStringLiteral("    arguments+=('--%1[%2]')\n").arg(option.name, option.text);
        }
        cases += QStringLiteral("    ;;\n");
    }
    return QStringLiteral(R"(#compdef tallyvane
local -a commands arguments
commands=(
%1)
arguments=(
%2    '1:command:{_describe command commands}'
)
case ${words[(r)(%4)]} in
%3esac
_arguments $arguments
)")
        .arg(commands, general, cases, commandNames().join(u'|'));
}

QString fish() {
    const QString outside =
        QStringLiteral("not __fish_seen_subcommand_from ") + commandNames().join(u' ');
    QString text = QStringLiteral("complete -c tallyvane -f\n");
    for (const CommandUsage& command : commandUsages) {
        text += QStringLiteral("complete -c tallyvane -n '%1' -a %2 -d '%3'\n")
                    .arg(outside, command.name, command.text);
    }
    for (const OptionUsage& option : commandOptionUsages) {
        QString condition = outside;
        if (!option.commands.isEmpty()) {
            condition = QStringLiteral("__fish_seen_subcommand_from ") + option.commands;
            condition.remove(u',');
        }
        text += QStringLiteral("complete -c tallyvane -n '%1' -l %2 -d '%3'\n")
                    .arg(condition, option.name, option.text);
    }
    for (const OptionUsage& option : generalOptionUsages) {
        text += QStringLiteral("complete -c tallyvane%1 -l %2 -d '%3'\n")
                    .arg(shortForms(option, QStringLiteral(" -s "), QString()), option.name,
                         option.text);
    }
    return text;
}

} // namespace

int main(int argc, char** argv) {
    const QByteArray kind = argc > 1 ? argv[1] : "";
    QString text;
    if (kind == "bash") {
        text = bash();
    } else if (kind == "zsh") {
        text = zsh();
    } else if (kind == "fish") {
        text = fish();
    } else if (QFile file(QFile::decodeName(argc > 2 ? argv[2] : ""));
               kind == "manual" && file.open(QIODevice::ReadOnly)) {
        text = manual(QString::fromUtf8(file.readAll()));
    }
    return text.isEmpty() || std::fputs(qPrintable(text), stdout) < 0 ? 1 : 0;
}
