#include "providers/process_runner_error.h"

namespace tallyvane::providers {

using model::Message;

Message description(const ProcessRunnerError& error) {
    switch (error.kind) {
    case ProcessRunnerError::Kind::executableNotFound:
        return Message(QT_TRANSLATE_NOOP("Message", "Could not find %1."), {error.text});
    case ProcessRunnerError::Kind::failed:
        return Message(QT_TRANSLATE_NOOP("Message", "Command failed (%1): %2"),
                       {QString::number(error.status), error.text});
    case ProcessRunnerError::Kind::timedOut:
        return Message(QT_TRANSLATE_NOOP("Message", "Command timed out."));
    case ProcessRunnerError::Kind::notAbsolute:
        return Message(QT_TRANSLATE_NOOP("Message", "Not an absolute path: %1"), {error.text});
    case ProcessRunnerError::Kind::notExecutable:
        return Message(QT_TRANSLATE_NOOP("Message", "Not an executable file: %1"), {error.text});
    case ProcessRunnerError::Kind::launchFailed:
        break;
    }
    return Message::foreign(error.text);
}

} // namespace tallyvane::providers
