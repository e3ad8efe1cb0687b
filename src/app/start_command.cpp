#include "app/commands.h"
#include "app/composition.h"
#include "app/desktop_part.h"
#include "app/resource_check.h"
#include "platform/linux/dbus_application.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <cerrno>
#include <unistd.h>

namespace tallyvane::app {

namespace {

/// Returns only on failure, with the error number.
int becomeDesktopProgram(StartMode mode) {
    QByteArray ownPath = QFile::encodeName(QCoreApplication::applicationFilePath());
    QByteArray background = "--background";
    char* const arguments[] = {
        ownPath.data(), mode == StartMode::background ? background.data() : nullptr, nullptr};
    for (const QByteArray& place : desktopProgramPlaces()) {
        ::execv(place.constData(), arguments);
        if (errno != ENOENT) {
            return errno;
        }
    }
    return ENOENT;
}

} // namespace

ExitCode reportNoAnswer() {
    printError(QStringLiteral("Tallyvane runs, but does not answer."));
    return ExitCode::failure;
}

ExitCode runStart(const Environment& environment, StartMode mode) {
    if (!checkResources(refreshResources)) {
        return ExitCode::failure;
    }
    leaveSilentSessionBus();
    if (mode == StartMode::background) {
        if (platform::isApplicationRunning()) {
            return ExitCode::success;
        }
    } else if (const auto activated = platform::activateRunning(environment.activationToken);
               activated) {
        return ExitCode::success;
    } else if (activated.error() == platform::CallError::noAnswer) {
        return reportNoAnswer();
    }
    const int error = becomeDesktopProgram(mode);
    printError(
        error == ENOENT
            ? QStringLiteral("The desktop part is not installed; 'tallyvane refresh' and "
                             "'tallyvane status' work without it.")
            : QStringLiteral("Could not start the desktop part: %1.").arg(qt_error_string(error)));
    return ExitCode::failure;
}

} // namespace tallyvane::app
