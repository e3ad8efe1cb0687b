#include "app/command_line.h"
#include "app/desktop/desktop_program.h"
#include "app/resource_check.h"
#include "app/terminal.h"
#include "platform/application_id.h"
#include "platform/linux/session_bus.h"
#include "platform/linux/termination_signals.h"

#include <QtGui/QGuiApplication>

#include <utility>

using namespace tallyvane;

namespace {

/// Stands in for Qt's handler while Qt connects to the display: instead of several lines and an
/// abort, one line.
void tellOfUnusableDisplay(QtMsgType type, const QMessageLogContext& /*where*/,
                           const QString& /*text*/) {
    if (type == QtFatalMsg) {
        app::printError(
            qEnvironmentVariableIsEmpty("DISPLAY")
                ? QStringLiteral("The Wayland display %1 cannot be used; this needs Qt's plugin "
                                 "for Wayland (qt6-wayland).")
                      .arg(qEnvironmentVariable("WAYLAND_DISPLAY"))
                : QStringLiteral("The display %1 cannot be used.")
                      .arg(qEnvironmentVariable("DISPLAY")));
        app::endProgram(std::to_underlying(app::ExitCode::failure));
    }
}

int run(app::StartMode mode) {
    const platform::TerminationSignals signals([] { QCoreApplication::quit(); });
    app::DesktopProgram program(app::readEnvironment());
    const auto ended = program.start(mode);
    return ended ? std::to_underlying(*ended) : QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        if (qEnvironmentVariableIsEmpty("DISPLAY") &&
            qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
            app::printError(QStringLiteral("There is no display here; 'tallyvane refresh' and "
                                           "'tallyvane status' work without one."));
            return std::to_underlying(app::ExitCode::failure);
        }
        // A window chooses its own place under X11 alone, and the panel belongs beside the item.
        qputenv("QT_QPA_PLATFORM",
                qEnvironmentVariableIsEmpty("DISPLAY") ? "wayland" : "xcb;wayland");
    }
    if (!app::checkResources(app::desktopResources)) {
        return std::to_underlying(app::ExitCode::failure);
    }
    platform::leaveSilentSessionBus(qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tallyvane"));
    QGuiApplication::setDesktopFileName(QString(platform::applicationId));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const auto usualHandler = qInstallMessageHandler(tellOfUnusableDisplay);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(usualHandler);
    qunsetenv("QT_QPA_PLATFORM"); // not for the programs that this one starts
    const auto commandLine = app::parseCommandLine(QCoreApplication::arguments());
    if (!commandLine) {
        app::printError(commandLine.error());
        return std::to_underlying(app::ExitCode::usage);
    }
    app::endProgram(run(commandLine->startMode));
}
