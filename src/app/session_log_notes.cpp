#include "app/session_log_notes.h"

#include "model/foreign_text.h"
#include "providers/advice.h"

#include <QtCore/QFile>

namespace tallyvane::app {

using history::SkipReason;
using model::AIProvider;

namespace {

namespace fs = std::filesystem;

bool isSame(const fs::path& one, const fs::path& other) {
    std::error_code error;
    return fs::equivalent(one, other, error);
}

bool isFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

/// The command that makes the usual folder a link to where the logs are. The scan follows such a
/// link, but none below it.
QString linkCommand(const fs::path& usual, const fs::path& actual) {
    const auto word = [](const fs::path& path) {
        return providers::shellWord(QFile(path).fileName());
    };
    std::error_code error;
    QString command;
    if (fs::is_symlink(usual, error)) {
        command = QStringLiteral("rm %1 && ").arg(word(usual));
    } else if (fs::exists(usual, error)) {
        command = QStringLiteral("mv -T %1 %2 && ")
                      .arg(word(usual), word(fs::path(usual).concat("-before")));
    } else if (!isFolder(usual.parent_path())) {
        command = QStringLiteral("mkdir -p %1 && ").arg(word(usual.parent_path()));
    }
    return command + QStringLiteral("ln -sT %1 %2").arg(word(actual), word(usual));
}

SessionLogNote note(const QString& text, const fs::path& usual, const fs::path& actual) {
    return {.text = model::readableLine(text),
            .advice = QStringLiteral("To have them counted: %1")
                          .arg(model::readableLine(linkCommand(usual, actual)))};
}

} // namespace

QList<SessionLogNote> sessionLogNotes(const Environment& environment) {
    const history::LogRoots roots = history::logRoots(environment.home);
    QList<SessionLogNote> notes;
    struct Redirection {
        QLatin1StringView variable;
        fs::path folder; ///< empty if the variable is not set
        fs::path actual;
        AIProvider provider;
    };
    const Redirection redirections[] = {
        {QLatin1StringView("CODEX_HOME"), environment.codexHome, environment.codexHome / "sessions",
         AIProvider::codex},
        {QLatin1StringView("CLAUDE_CONFIG_DIR"), environment.claudeDirectory,
         environment.claudeDirectory / "projects", AIProvider::claude}};
    for (const Redirection& redirection : redirections) {
        const fs::path& usual = roots.at(redirection.provider);
        const bool isUsual = redirection.folder.lexically_normal() == usual.parent_path() ||
                             isSame(redirection.folder, usual.parent_path()) ||
                             isSame(redirection.actual, usual);
        if (!redirection.folder.empty() && !isUsual) {
            notes.append(note(QStringLiteral("%1 is set, so session logs go to %2, but only %3 is "
                                             "read")
                                  .arg(redirection.variable, QFile(redirection.actual).fileName(),
                                       QFile(usual).fileName()),
                              usual, redirection.actual));
        }
    }
    const std::pair<AIProvider, fs::path> others[] = {
        {AIProvider::codex, environment.home / ".codex" / "archived_sessions"},
        {AIProvider::claude, environment.locations.configHome / "claude" / "projects"}};
    for (const auto& [provider, other] : others) {
        const bool isRedirected = provider == AIProvider::codex
                                      ? !environment.codexHome.empty()
                                      : !environment.claudeDirectory.empty();
        const fs::path& usual = roots.at(provider);
        if (!isRedirected && !isFolder(usual) && isFolder(other)) {
            notes.append(
                note(QStringLiteral("%1 is missing, and the session logs in %2 are not read")
                         .arg(QFile(usual).fileName(), QFile(other).fileName()),
                     usual, other));
        }
    }
    return notes;
}

QString skipText(SkipReason reason) {
    switch (reason) {
    case SkipReason::tooOld:
        return QStringLiteral("older than 35 days");
    case SkipReason::overLimit:
        return QStringLiteral("beyond the 400 newest");
    case SkipReason::tooLarge:
        return QStringLiteral("of 25 MB or more");
    case SkipReason::notUtf8:
        return QStringLiteral("not UTF-8");
    case SkipReason::unreadable:
        return QStringLiteral("not readable");
    case SkipReason::vanished:
        return QStringLiteral("removed meanwhile");
    }
    return {};
}

} // namespace tallyvane::app
