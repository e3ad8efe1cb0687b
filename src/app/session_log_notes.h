#pragma once

#include "app/environment.h"
#include "history/session_log_scan.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace tallyvane::app {

/// Session logs that lie where they are not read.
struct SessionLogNote {
    QString text;
    QString advice; ///< one sentence with the command that mends it
};

/// One note per folder: those of CODEX_HOME and CLAUDE_CONFIG_DIR, and where the usual folder is
/// missing, Codex's archive and Claude Code's folder in $XDG_CONFIG_HOME. No note about a folder to
/// which the usual one links.
[[nodiscard]] QList<SessionLogNote> sessionLogNotes(const Environment& environment);

/// For "12 files skipped: ".
[[nodiscard]] QString skipText(history::SkipReason reason);

} // namespace tallyvane::app
