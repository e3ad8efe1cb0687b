#pragma once

#include "app/composition.h"
#include "app/environment.h"

#include <QtCore/QList>

namespace tallyvane::app {

enum class CheckState {
    fine,
    attention, ///< works, but not as it should
    broken,
    unknown, ///< not applicable, or nothing is wrong with its absence
};

/// One line of `tallyvane doctor`.
struct Check {
    QString id; ///< "<section>.<name>"
    CheckState state = CheckState::unknown;
    QString text;   ///< without a full stop
    QString advice; ///< what to do, in one or two sentences; may be empty
};

using Checks = QList<Check>;

// The checks change nothing and print nothing. Pointers must outlive the tasks. Those without a
// task block, on files only, and may run in any thread. Without a Codex CLI, those that need one
// are empty.

/// Which program is the Codex CLI, and which others there are.
[[nodiscard]] Checks codexProgramChecks(const providers::CodexProgram& program);
/// Starts the program in use, which may take five seconds.
[[nodiscard]] QCoro::Task<Checks> codexVersionCheck(QuotaSources* sources);
/// Asks for the figures: "codex.answer" is fine if there are some.
[[nodiscard]] QCoro::Task<Checks> codexAnswerCheck(QuotaSources* sources);

/// The sign-in of Claude Code: "claude.signIn" is fine if there is one that has not expired.
[[nodiscard]] QCoro::Task<Checks> claudeSignInChecks(QuotaSources* sources,
                                                     Environment environment);
/// Asks the service: "claude.service" is fine if it gave figures.
[[nodiscard]] QCoro::Task<Checks> claudeServiceCheck(QuotaSources* sources);

/// What QuotaSources::claude has loaded, or why it could not.
using LoadedClaude = std::expected<ClaudePart*, QString>;
[[nodiscard]] QCoro::Task<Checks> proxyCheck(LoadedClaude claude,
                                             providers::NetworkVariables variables);
[[nodiscard]] Checks certificateChecks(const LoadedClaude& claude,
                                       const providers::NetworkVariables& variables);

/// What is counted, and what lies elsewhere.
[[nodiscard]] Checks sessionLogChecks(const Environment& environment, model::Timestamp now);

/// The program's files. One that prevents saving is broken.
[[nodiscard]] Checks ownFileChecks(const Environment& environment, model::Timestamp now);

/// The session bus and the desktop; one line if the desktop part is not installed.
[[nodiscard]] QCoro::Task<Checks> desktopChecks(Environment environment);

/// "3 h", "2 d", "5 min".
[[nodiscard]] QString durationText(std::chrono::seconds duration);

} // namespace tallyvane::app

template <>
inline constexpr std::array tallyvane::model::rawValues<tallyvane::app::CheckState>{
    QLatin1StringView("fine"), QLatin1StringView("attention"), QLatin1StringView("broken"),
    QLatin1StringView("unknown")};
