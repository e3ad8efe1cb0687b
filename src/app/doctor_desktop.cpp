#include "app/desktop_part.h"
#include "app/doctor_checks.h"
#include "core/launch_at_login.h"
#include "platform/linux/desktop_report.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

namespace tallyvane::app {

using platform::DesktopReport;

namespace {

using Login = platform::LoginItemStatus;

/// " (name)" unless it is unknown.
QString inBrackets(const std::optional<QString>& process) {
    return process && !process->isEmpty() ? QStringLiteral(" (%1)").arg(*process) : QString();
}

Check statusHostCheck(const DesktopReport& report, const QString& currentDesktop) {
    Check check{.id = QStringLiteral("desktop.statusHost")};
    if (report.hasStatusHost) {
        check.state = CheckState::fine;
        check.text =
            QStringLiteral("The panel shows status items") + inBrackets(report.statusWatcher);
    } else {
        check.state = CheckState::attention;
        check.text = QStringLiteral("Nothing shows status items, so the program has no icon");
        check.advice = platform::statusHostAdvice(currentDesktop);
    }
    return check;
}

Check notificationCheck(const DesktopReport& report, bool isAuthorized) {
    Check check{.id = QStringLiteral("desktop.notifications"), .state = CheckState::attention};
    if (!report.notificationDaemon) {
        check.text = QStringLiteral("Nothing shows notifications");
        check.advice = QStringLiteral("Install a notification daemon, such as 'sudo apt install "
                                      "dunst'.");
    } else if (!isAuthorized) {
        check.text = QStringLiteral("Notifications are switched off") +
                     inBrackets(report.notificationDaemon);
        check.advice = QStringLiteral("Switch them on, for all and for Tallyvane, in the desktop's "
                                      "notification settings.");
    } else {
        check.state = CheckState::fine;
        check.text =
            QStringLiteral("Notifications are shown") + inBrackets(report.notificationDaemon);
    }
    return check;
}

Check loginCheck(Login status) {
    Check check{.id = QStringLiteral("desktop.login")};
    switch (status) {
    case Login::enabled:
        check.state = CheckState::fine;
        check.text = QStringLiteral("The program starts at login");
        break;
    case Login::notRegistered:
        check.text = QStringLiteral("The program does not start at login");
        break;
    case Login::requiresApproval:
        check.text = QStringLiteral("Starting at login is switched off in the desktop's settings");
        break;
    case Login::notFound:
        check.state = CheckState::attention;
        check.text = QStringLiteral("Starting at login is on, but its program is missing");
        check.advice = QStringLiteral("Switch it off and on: 'tallyvane config set launch-at-login "
                                      "off', then 'on'.");
        break;
    }
    return check;
}

} // namespace

QCoro::Task<Checks> desktopChecks(Environment environment) {
    Checks checks;
    if (!desktopProgram()) {
        checks.append({.id = QStringLiteral("desktop.installed"),
                       .state = CheckState::unknown,
                       .text = QStringLiteral("The desktop part is not installed (headless)"),
                       .advice = {}});
        co_return checks;
    }
    // Starts the daemon if need be, as a notification would.
    platform::DBusNotificationCentre centre(environment.searchPath,
                                            environment.locations.configHome);
    const bool isAuthorized = co_await centre.isAuthorized();
    const DesktopReport report = co_await platform::readDesktop();
    const auto program = QCoreApplication::applicationFilePath().toStdString();
    const platform::AutostartEntry loginItem(autostartPlaces(environment, program));
    if (!report.hasBus) {
        checks.append(
            {.id = QStringLiteral("desktop.bus"),
             .state = CheckState::attention,
             .text = QStringLiteral("There is no session bus here, or it does not answer"),
             .advice = QStringLiteral("Run 'tallyvane doctor' in a terminal of the "
                                      "desktop.")});
        checks.append(loginCheck(loginItem.status()));
        co_return checks;
    }
    checks.append({.id = QStringLiteral("desktop.program"),
                   .state = report.program ? CheckState::fine : CheckState::unknown,
                   .text = report.program ? QStringLiteral("The program is running") +
                                                inBrackets(report.program)
                                          : QStringLiteral("The program is not running"),
                   .advice = {}});
    checks.append(statusHostCheck(report, environment.currentDesktop));
    checks.append(notificationCheck(report, isAuthorized));
    checks.append(loginCheck(loginItem.status()));
    const bool hasPortal = report.portal.has_value();
    checks.append({.id = QStringLiteral("desktop.portal"),
                   .state = hasPortal ? CheckState::fine : CheckState::attention,
                   .text = hasPortal ? QStringLiteral("The desktop portal is there") +
                                           inBrackets(report.portal)
                                     : QStringLiteral("There is no desktop portal, so the windows "
                                                      "do not know the desktop's colours"),
                   .advice = hasPortal ? QString()
                                       : QStringLiteral("Install it: 'sudo apt install "
                                                        "xdg-desktop-portal-gtk'.")});
    co_return checks;
}

} // namespace tallyvane::app
