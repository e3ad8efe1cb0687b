#include "providers/codex/codex_error.h"

namespace tallyvane::providers {

QuotaFailure quotaFailure(const CodexError& error) {
    const auto* runnerError = std::get_if<ProcessRunnerError>(&error);
    return {.text = runnerError ? description(*runnerError)
                                : QStringLiteral("The reply of the Codex CLI could not be read."),
            .shownAt = QuotaFailure::Place::errorLine};
}

} // namespace tallyvane::providers
