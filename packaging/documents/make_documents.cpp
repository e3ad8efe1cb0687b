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

/// The words of "a, b".
QStringList listed(QLatin1StringView words) {
    return QString(words).split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

QStringList configWordNames() {
    QStringList names;
    std::ranges::transform(configWordUsages, std::back_inserter(names), &ConfigWordUsage::name);
    return names;
}

/// The words of config that a setting follows.
QStringList wordsBeforeKey() {
    QStringList names;
    for (const ConfigWordUsage& word : configWordUsages) {
        if (word.argumentCount() > 0) {
            names.append(word.name);
        }
    }
    return names;
}

/// The word of config that a value follows too.
QString wordBeforeValue() {
    return std::ranges::max_element(configWordUsages, {}, &ConfigWordUsage::argumentCount)->name;
}

QStringList settingKeys() {
    QStringList keys;
    std::ranges::transform(settingUsages, std::back_inserter(keys), &SettingUsage::key);
    return keys;
}

/// The options of a command, or without one for an empty name, apart from those of all.
QList<OptionUsage> optionsOf(const QString& command) {
    QList<OptionUsage> options;
    std::ranges::copy_if(commandOptionUsages, std::back_inserter(options),
                         [&](const OptionUsage& option) {
                             return command.isEmpty() ? option.commands.isEmpty()
                                                      : listed(option.commands).contains(command);
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

/// The cases of $before, the word that the completed one follows, and of the words so far.
QString bashValues() {
    QString cases;
    for (const OptionUsage& option : commandOptionUsages) {
        if (!option.value.isEmpty()) {
            cases += QStringLiteral("    --%1) words='%2' ;;\n")
                         .arg(option.name, listed(option.values).join(u' '));
        }
    }
    cases += QStringLiteral("    *)\n        case ${given[*]} in\n");
    for (const SettingUsage& setting : settingUsages) {
        const QString words = listed(setting.values).join(u' ');
        cases += QStringLiteral("        'config %1 %2') %3 ;;\n")
                     .arg(wordBeforeValue(), setting.key,
                          words.isEmpty() ? QStringLiteral("files=yes")
                                          : QStringLiteral("words='%1'").arg(words));
    }
    for (const QString& word : wordsBeforeKey()) {
        cases += QStringLiteral("        'config %1') words='%2' ;;\n")
                     .arg(word, settingKeys().join(u' '));
    }
    return cases;
}

QString bash() {
    QString cases;
    for (const QString& command : commandNamesAndNone()) {
        QStringList words;
        if (command.isEmpty()) {
            words = commandNames();
        } else if (command == u"config") {
            words = configWordNames();
        }
        for (const OptionUsage& option : optionsOf(command)) {
            words.append(QStringLiteral("--") + option.name);
        }
        for (const OptionUsage& option : generalOptionUsages) {
            words.append(QStringLiteral("--") + option.name);
        }
        cases += QStringLiteral("        %1) words='%2' ;;\n")
                     .arg(command.isEmpty() ? QStringLiteral("''") : command, words.join(u' '));
    }
    QStringList withValue;
    for (const OptionUsage& option : commandOptionUsages) {
        if (!option.value.isEmpty()) {
            withValue.append(QStringLiteral("--") + option.name);
        }
    }
    return QStringLiteral(R"(# bash completion for tallyvane
_tallyvane() {
    local word before='' current=${COMP_WORDS[COMP_CWORD]} words='' files='' given=()
    # "--option=value" is three words here.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ $word == = ]]; then
            continue
        elif [[ $word != -* && ! $before =~ ^(%1)$ ]]; then
            given+=("$word")
        fi
        before=$word
    done
    [[ $current == = ]] && current=''
    case $before in
%2%3        esac
        ;;
    esac
    if [[ $files ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}
complete -F _tallyvane tallyvane
)")
        .arg(withValue.join(u'|'), bashValues(), cases);
}

/// What an option takes.
QString zshValue(const OptionUsage& option) {
    if (option.value.isEmpty()) {
        return {};
    }
    const QString words = listed(option.values).join(u' ');
    return QStringLiteral(":%1:%2").arg(
        option.value, words.isEmpty() ? QStringLiteral(" ") : QStringLiteral("(%1)").arg(words));
}

/// What follows config.
QString zshConfig() {
    QString text = QStringLiteral("    arguments+=('2:word:(%1)')\n"
                                  "    case ${words[(r)(%2)]} in (?*) "
                                  "arguments+=('3:setting:(%3)') ;; esac\n"
                                  "    case ${words[(r)%4]}:${words[(r)(%5)]} in\n")
                       .arg(configWordNames().join(u' '), wordsBeforeKey().join(u'|'),
                            settingKeys().join(u' '), wordBeforeValue(), settingKeys().join(u'|'));
    for (const SettingUsage& setting : settingUsages) {
        const QString words = listed(setting.values).join(u' ');
        text += QStringLiteral("    %1:%2) arguments+=('4:value:%3') ;;\n")
                    .arg(wordBeforeValue(), setting.key,
                         words.isEmpty() ? QStringLiteral("_files")
                                         : QStringLiteral("(%1)").arg(words));
    }
    return text + QStringLiteral("    esac\n");
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
            cases += QStringLiteral("    arguments+=('--%1%2[%3]%4')\n")
                         .arg(option.name, option.value.isEmpty() ? QString() : QStringLiteral("="),
                              option.text, zshValue(option));
        }
        if (command == u"config") {
            cases += zshConfig();
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

QString fishSeen(const QStringList& words) {
    return QStringLiteral("__fish_seen_subcommand_from ") + words.join(u' ');
}

/// What follows config.
QString fishConfig() {
    const QString offer = QStringLiteral("complete -c tallyvane -n '%1; and %2' %3\n");
    const QString config = fishSeen({QStringLiteral("config")});
    const QString without = QStringLiteral("not ");
    QString text = offer.arg(config, without + fishSeen(configWordNames()),
                             QStringLiteral("-a '%1'").arg(configWordNames().join(u' ')));
    text += offer.arg(config + QStringLiteral("; and ") + fishSeen(wordsBeforeKey()),
                      without + fishSeen(settingKeys()),
                      QStringLiteral("-a '%1'").arg(settingKeys().join(u' ')));
    for (const SettingUsage& setting : settingUsages) {
        const QString words = listed(setting.values).join(u' ');
        text += offer.arg(config + QStringLiteral("; and ") + fishSeen({wordBeforeValue()}),
                          fishSeen({setting.key}),
                          words.isEmpty() ? QStringLiteral("-F")
                                          : QStringLiteral("-a '%1'").arg(words));
    }
    return text;
}

QString fish() {
    const QString outside = QStringLiteral("not ") + fishSeen(commandNames());
    QString text = QStringLiteral("complete -c tallyvane -f\n");
    for (const CommandUsage& command : commandUsages) {
        text += QStringLiteral("complete -c tallyvane -n '%1' -a %2 -d '%3'\n")
                    .arg(outside, command.name, command.text);
    }
    for (const OptionUsage& option : commandOptionUsages) {
        const QString condition =
            option.commands.isEmpty() ? outside : fishSeen(listed(option.commands));
        const QString value =
            option.value.isEmpty() ? QString()
            : option.values.isEmpty()
                ? QStringLiteral(" -x")
                : QStringLiteral(" -x -a '%1'").arg(listed(option.values).join(u' '));
        text += QStringLiteral("complete -c tallyvane -n '%1' -l %2%3 -d '%4'\n")
                    .arg(condition, option.name, value, option.text);
    }
    text += fishConfig();
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
