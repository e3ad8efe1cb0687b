#pragma once

#include "model/message.h"

#include <chrono>

/// What the user can do about a failure: one sentence each, for windows and the command line alike.
namespace tallyvane::providers {

enum class Trouble {
    noClaudeSignIn,
    keyringLocked, ///< and there is no other sign-in of Claude Code
    claudeSignInExpired,
    claudeNotReached, ///< no connection to the service
    claudeAnswer,     ///< the service's answer gave no figures
    noCodex,
    codexElsewhere,    ///< where programs are started only once the user agreed
    codexPathUnusable, ///< the path that the user chose holds no program
    codexNotSignedIn,
    codexNotAnswering,
    codexAnswer, ///< the CLI said something else
};

[[nodiscard]] model::Message advice(Trouble trouble);

/// While the service asks for a pause, of which this much is left; zero if it did not say how much.
[[nodiscard]] model::Message rateLimitAdvice(std::chrono::seconds pause);

/// What to do about a status message that an earlier run stored with the figures; empty if it is
/// not known. That run knew more: a locked keyring, for one, has the message of a missing sign-in.
[[nodiscard]] model::Message storedStatusAdvice(const QString& statusMessage);

/// `text` as one word of a shell's command, quoted if need be.
[[nodiscard]] QString shellWord(const QString& text);

/// The command that makes the program at `path` the Codex CLI to use, for a shell.
[[nodiscard]] QString codexPathCommand(const QString& path);

} // namespace tallyvane::providers
