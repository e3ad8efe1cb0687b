#pragma once

#include "model/message.h"

#include <cstdint>

namespace tallyvane::providers {

/// Why a command gave no reply.
struct ProcessRunnerError {
    enum class Kind {
        executableNotFound, ///< `text` is the program's name as the user knows it
        failed,             ///< `text` is the command's own message
        timedOut,           ///< no reply in time, and no message
        launchFailed,       ///< `text` is the system's reason for not starting the program
        notAbsolute,        ///< `text` is the path that should be absolute
        notExecutable,      ///< `text` is the path of something that is no program
    };

    Kind kind = Kind::timedOut;
    QString text;             ///< made readable; may name the user's account, so never stored
    std::int32_t status = -1; ///< for `failed` only; always -1, as no exit status is ever read

    bool operator==(const ProcessRunnerError&) const = default;
};

/// The sentence for the user.
[[nodiscard]] model::Message description(const ProcessRunnerError& error);

} // namespace tallyvane::providers
