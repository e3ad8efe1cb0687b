#include "providers/codex/codex_program.h"

#include "model/foreign_text.h"
#include "providers/process_runner.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QVersionNumber>

#include <algorithm>

namespace tallyvane::providers {

namespace {

using ProgramFault = ProcessRunnerError::Kind;

const QString codexPathKey = QStringLiteral("codexPath");

/// "~" stands for the home directory, "$" for $XDG_DATA_HOME, "*" for the folder of one version.
constexpr QLatin1StringView otherFolders[] = {
    QLatin1StringView("/usr/bin"),
    QLatin1StringView("~/.npm-global/bin"),
    QLatin1StringView("$/npm/bin"),
    QLatin1StringView("~/.nvm/versions/node/*/bin"),
    QLatin1StringView("$/fnm/node-versions/*/installation/bin"),
    QLatin1StringView("~/.fnm/node-versions/*/installation/bin"),
    QLatin1StringView("~/.volta/bin"),
    QLatin1StringView("$/mise/installs/node/*/bin"),
    QLatin1StringView("$/mise/installs/npm-openai-codex/*/bin"),
    QLatin1StringView("$/mise/shims"),
    QLatin1StringView("~/.asdf/installs/nodejs/*/bin"),
    QLatin1StringView("~/.asdf/shims"),
    QLatin1StringView("$/pnpm"),
    QLatin1StringView("$/pnpm/bin"),
    QLatin1StringView("~/.bun/bin"),
    QLatin1StringView("~/.nix-profile/bin"),
    QLatin1StringView("~/.local/state/nix/profile/bin"),
    QLatin1StringView("/nix/var/nix/profiles/default/bin"),
    QLatin1StringView("/run/current-system/sw/bin"),
    QLatin1StringView("/home/linuxbrew/.linuxbrew/bin"),
    QLatin1StringView("~/.linuxbrew/bin"),
};

/// The number of versions of one manager that are looked at.
constexpr qsizetype maximumVersions = 200;

QVersionNumber versionOf(const QString& folder) {
    return QVersionNumber::fromString(folder.startsWith(u'v') ? QStringView(folder).sliced(1)
                                                              : QStringView(folder));
}

/// The folders that a pattern with one "*" stands for, the newest version first.
QStringList versionFolders(const QString& pattern) {
    const qsizetype star = pattern.indexOf(u'*');
    if (star < 0) {
        return {pattern};
    }
    QStringList versions;
    QDirIterator entries(pattern.first(star), QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext() && versions.size() < maximumVersions) {
        entries.next();
        versions.append(entries.fileName());
    }
    std::ranges::sort(versions, std::ranges::greater(), versionOf);
    for (QString& folder : versions) {
        folder = pattern.first(star) + folder + pattern.sliced(star + 1);
    }
    return versions;
}

/// Why the path cannot be the user's choice; nothing if it can.
std::optional<ProcessRunnerError> fault(const QString& path) {
    if (!QDir::isAbsolutePath(path)) {
        return ProcessRunnerError{ProgramFault::notAbsolute, path};
    }
    if (!QFileInfo::exists(path)) {
        return ProcessRunnerError{ProgramFault::executableNotFound, path};
    }
    if (!findExecutable({path})) {
        return ProcessRunnerError{ProgramFault::notExecutable, path};
    }
    return std::nullopt;
}

} // namespace

CodexPlaces codexPlaces(const QString& home, const QString& dataHome,
                        const QStringList& searchPath) {
    // $PATH comes last: that of a desktop session differs from a shell's.
    CodexPlaces places{.standard = {QStringLiteral("/opt/homebrew/bin/codex"),
                                    QStringLiteral("/usr/local/bin/codex"),
                                    home + QStringLiteral("/.local/bin/codex")}};
    for (QString folder : otherFolders) {
        if (folder.startsWith(u'~')) {
            folder.replace(0, 1, home);
        } else if (folder.startsWith(u'$')) {
            folder.replace(0, 1, dataHome);
        }
        places.others.append(folder);
    }
    places.others += searchPath;
    return places;
}

std::expected<QString, ProcessRunnerError> CodexProgram::path() const {
    if (QString path = chosen(); !path.isEmpty()) {
        if (auto wrong = fault(path)) {
            wrong->text = model::readableLine(wrong->text);
            return std::unexpected(*wrong);
        }
        return path;
    }
    if (const auto found = findExecutable(m_places.standard)) {
        return *found;
    }
    return std::unexpected(
        ProcessRunnerError{ProgramFault::executableNotFound, QStringLiteral("Codex CLI")});
}

QStringList CodexProgram::findElsewhere() const {
    QStringList found;
    for (const QString& pattern : m_places.others) {
        for (const QString& folder : versionFolders(pattern)) {
            if (const auto program = findExecutable({folder + QStringLiteral("/codex")})) {
                found.append(*program);
            }
        }
    }
    found.removeDuplicates();
    return found;
}

QString CodexProgram::chosen() const {
    return m_defaults.text(codexPathKey);
}

std::expected<void, QString> CodexProgram::choose(const QString& path) {
    if (!path.isEmpty()) {
        if (const auto wrong = fault(path)) {
            return std::unexpected(description(*wrong).text());
        }
    }
    if (const auto stored = m_defaults.setText(codexPathKey, path); !stored) {
        return std::unexpected(stored.error().message.text());
    }
    return {};
}

} // namespace tallyvane::providers
