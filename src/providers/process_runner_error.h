#pragma once

#include <QtCore/QString>

#include <cstdint>

namespace tallyvane::providers {

/// Why a command gave no answer.
struct ProcessRunnerError {
    enum class Kind {
        executableNotFound, ///< `text` is the name of the program as the user knows it
        failed,             ///< `text` is what the command said of it
        timedOut,           ///< no answer in time, and the command said nothing
        launchFailed,       ///< `text` is the system's reason for not starting the program
    };

    Kind kind = Kind::timedOut;
    QString text;             ///< readable, whoever wrote it
    std::int32_t status = -1; ///< of `failed` alone; -1 as no exit status is ever read

    bool operator==(const ProcessRunnerError&) const = default;
};

/// The sentence for the user.
[[nodiscard]] QString description(const ProcessRunnerError& error);

} // namespace tallyvane::providers
