#include "platform/linux/desktop_report.h"

#include "platform/application_id.h"
#include "platform/linux/bus_call.h"
#include "platform/linux/lock_holder.h"

#include <QtCore/QStringList>

namespace tallyvane::platform {

namespace {

class HostAdvice {
    Q_DECLARE_TR_FUNCTIONS(HostAdvice)
};

using std::chrono::milliseconds;

const QString statusWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");

/// The process behind a name on the bus.
QCoro::Task<std::optional<QString>> ownerOf(QString name, QStringList startable,
                                            milliseconds patience) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const QDBusMessage question = busCall(QStringLiteral("GetConnectionUnixProcessID")) << name;
    const BusReply process = co_await callBus(bus, question, patience);
    std::optional<QString> owner;
    if (process) {
        owner = processName(static_cast<pid_t>(process->arguments().value(0).toUInt()));
    } else if (startable.contains(name)) {
        owner = QString();
    }
    co_return owner;
}

QCoro::Task<QStringList> startableNames(milliseconds patience) {
    const QDBusMessage question = busCall(QStringLiteral("ListActivatableNames"));
    const BusReply names = co_await callBus(QDBusConnection::sessionBus(), question, patience);
    co_return names ? names->arguments().value(0).toStringList() : QStringList();
}

QCoro::Task<bool> hasStatusHost(milliseconds patience) {
    QDBusMessage question =
        propertyRead(statusWatcher, QStringLiteral("/StatusNotifierWatcher"), statusWatcher,
                     QStringLiteral("IsStatusNotifierHostRegistered"));
    question.setAutoStartService(false);
    const BusValue value = co_await readBusValue(QDBusConnection::sessionBus(), question, patience);
    // A watcher without the property is the host itself.
    co_return value ? value->toBool() : value.error() == BusError::failed;
}

} // namespace

QCoro::Task<DesktopReport> readDesktop(milliseconds patience) {
    DesktopReport report;
    report.hasBus = QDBusConnection::sessionBus().isConnected();
    if (!report.hasBus) {
        co_return report;
    }
    const QStringList startable = co_await startableNames(patience);
    const QString daemonName = QStringLiteral("org.freedesktop.Notifications");
    const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
    auto program = ownerOf(QString(applicationId), {}, patience);
    auto watcher = ownerOf(statusWatcher, {}, patience);
    auto daemon = ownerOf(daemonName, {}, patience);
    auto portal = ownerOf(portalName, startable, patience);
    report.program = co_await program;
    report.statusWatcher = co_await watcher;
    report.notificationDaemon = co_await daemon;
    report.portal = co_await portal;
    if (report.statusWatcher) {
        report.hasStatusHost = co_await hasStatusHost(patience);
    }
    co_return report;
}

QString statusHostAdvice(const QString& currentDesktop) {
    const auto isOneOf = [desktops = currentDesktop.toLower().split(u':')](auto... names) {
        return (desktops.contains(QLatin1StringView(names)) || ...);
    };
    if (isOneOf("gnome")) {
        return HostAdvice::tr(
            "GNOME needs the AppIndicator extension: 'sudo apt install "
            "gnome-shell-extension-appindicator', log out and in, then 'gnome-extensions enable "
            "ubuntu-appindicators@ubuntu.com'.");
    }
    if (isOneOf("xfce")) {
        return HostAdvice::tr(
            "Add the Status Tray Plugin to the panel: 'xfce4-panel --add=systray'.");
    }
    if (isOneOf("kde")) {
        return HostAdvice::tr("Add the widget System Tray to Plasma's panel: right-click it and "
                              "choose Add Widgets.");
    }
    if (isOneOf("mate")) {
        return HostAdvice::tr("Add the applet Notification Area to the panel: right-click it and "
                              "choose Add to Panel.");
    }
    if (isOneOf("lxqt")) {
        return HostAdvice::tr("Add the widget Status Notifier to the panel: right-click it and "
                              "choose Manage Widgets.");
    }
    if (isOneOf("x-cinnamon", "cinnamon")) {
        return HostAdvice::tr("Add the XApp Status Applet to the panel: "
                              "'cinnamon-settings applets'.");
    }
    if (isOneOf("sway", "hyprland", "river", "wlroots", "labwc", "wayfire", "niri")) {
        return HostAdvice::tr("Start Waybar ('sudo apt install waybar') with \"tray\" in one of "
                              "the module lists of its configuration.");
    }
    return HostAdvice::tr("Add a status area to the panel, often called system tray, that shows "
                          "StatusNotifier items.");
}

} // namespace tallyvane::platform
