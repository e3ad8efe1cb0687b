#include "providers/process_runner_error.h"

namespace tallyvane::providers {

QString description(const ProcessRunnerError& error) {
    switch (error.kind) {
    case ProcessRunnerError::Kind::executableNotFound:
        return QStringLiteral("Could not find ") + error.text + u'.';
    case ProcessRunnerError::Kind::failed:
        return QStringLiteral("Command failed (") + QString::number(error.status) +
               QStringLiteral("): ") + error.text;
    case ProcessRunnerError::Kind::timedOut:
        return QStringLiteral("Command timed out.");
    case ProcessRunnerError::Kind::launchFailed:
        break;
    }
    return error.text;
}

} // namespace tallyvane::providers
