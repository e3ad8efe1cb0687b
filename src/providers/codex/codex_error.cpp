#include "providers/codex/codex_error.h"

namespace tallyvane::providers {

QString description(const CodexError& error) {
    if (const auto* runnerError = std::get_if<ProcessRunnerError>(&error)) {
        return description(*runnerError);
    }
    return QStringLiteral("The reply of the Codex CLI could not be read.");
}

} // namespace tallyvane::providers
