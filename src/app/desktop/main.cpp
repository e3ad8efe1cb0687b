#include "app/command_line.h"
#include "app/desktop/desktop_program.h"
#include "app/resource_check.h"
#include "app/terminal.h"
#include "platform/application_id.h"
#include "platform/linux/termination_signals.h"
#include "ui/translation/translation.h"

#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtGui/QGuiApplication>

#include <utility>

using namespace tallyvane;

namespace {

/// Replaces Qt's message handler while Qt connects to the display: one line instead of several and
/// an abort.
void reportUnusableDisplay(QtMsgType type, const QMessageLogContext& /*where*/,
                           const QString& /*text*/) {
    if (type == QtFatalMsg) {
        const app::Environment environment = app::readEnvironment();
        app::printError(
            environment.x11Display.isEmpty()
                ? QStringLiteral("The Wayland display %1 cannot be used; this needs Qt's plugin "
                                 "for Wayland (qt6-wayland).")
                      .arg(environment.waylandDisplay)
                : QStringLiteral("The display %1 cannot be used.").arg(environment.x11Display));
        app::endProgram(std::to_underlying(app::ExitCode::failure));
    }
}

int run(app::StartMode mode) {
    const platform::TerminationSignals signals([] { QCoreApplication::quit(); });
    const app::Environment environment = app::readEnvironment();
    QTranslator translator;
    const QLocale locale = ui::loadTranslation(translator, environment.languages);
    QLocale::setDefault(locale); // in whose digits texts are
    QGuiApplication::setLayoutDirection(locale.textDirection());
    QCoreApplication::installTranslator(&translator);
    app::DesktopProgram program(environment);
    const auto ended = program.start(mode);
    return ended ? std::to_underlying(*ended) : QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        const app::Environment environment = app::readEnvironment();
        if (environment.x11Display.isEmpty() && environment.waylandDisplay.isEmpty()) {
            app::printError(QStringLiteral("There is no display here; 'tallyvane refresh' and "
                                           "'tallyvane status' work without one."));
            return std::to_underlying(app::ExitCode::failure);
        }
        // Only X11 lets a window choose its position, and the panel belongs beside the item.
        qputenv("QT_QPA_PLATFORM", environment.x11Display.isEmpty() ? "wayland" : "xcb;wayland");
    }
    if (!app::checkResources(app::desktopResources)) {
        return std::to_underlying(app::ExitCode::failure);
    }
    app::leaveSilentSessionBus();
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tallyvane"));
    QGuiApplication::setDesktopFileName(QString(platform::applicationId));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const auto usualHandler = qInstallMessageHandler(reportUnusableDisplay);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(usualHandler);
    qunsetenv("QT_QPA_PLATFORM"); // child programs must not inherit it
    const auto commandLine = app::parseCommandLine(QCoreApplication::arguments());
    if (!commandLine) {
        app::printError(commandLine.error());
        return std::to_underlying(app::ExitCode::usage);
    }
    app::endProgram(run(commandLine->startMode));
}
