#include "platform/linux/dbus_notification_centre.h"

#include "model/file_io.h"
#include "platform/application_id.h"
#include "platform/linux/bus_call.h"
#include "platform/linux/desktop_entry.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QPromise>
#include <QtCore/QStandardPaths>
#include <QtCore/QTimer>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusServiceWatcher>

#include <utility>

using std::chrono::milliseconds;

namespace tallyvane::platform {

namespace {

const QString daemonName = QStringLiteral("org.freedesktop.Notifications"); // and interface
const QString daemonPath = QStringLiteral("/org/freedesktop/Notifications");
const QString defaultAction = QStringLiteral("default");
const QString applicationName = QStringLiteral("Tallyvane");

QDBusMessage daemonCall(const QString& method) {
    return QDBusMessage::createMethodCall(daemonName, daemonPath, daemonName, method);
}

QCoro::Task<bool> isTrue(QDBusMessage question, milliseconds patience) {
    const BusValue value = co_await readBusValue(QDBusConnection::sessionBus(), question, patience);
    co_return value && value->toBool();
}

QDBusMessage daemonPropertyRead(const QString& interface, const QString& property) {
    return propertyRead(daemonName, daemonPath, interface, property);
}

/// Whether a GSettings key holds false. A child process reads it: GLib would abort this one on a
/// missing schema, and keep threads and a second connection to the bus.
QCoro::Task<bool> isGSettingFalse(QString program, QString schema, QString key,
                                  milliseconds patience) {
    QPromise<void> end;
    end.start();
    const QFuture<void> hasEnded = end.future();
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    // Also emitted when the program cannot be started, unlike finished().
    QObject::connect(&process, &QProcess::stateChanged, [&end](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning) {
            end.finish();
        }
    });
    QTimer::singleShot(patience, &process, &QProcess::kill);
    process.start(program, {QStringLiteral("get"), schema, key});
    co_await hasEnded;
    co_return process.readAllStandardOutput().trimmed() == "false";
}

QCoro::Task<bool> isOffInGnome(QStringList searchPath, milliseconds patience) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("gsettings"), searchPath);
    if (program.isEmpty()) {
        co_return false;
    }
    const QString schema = QStringLiteral("org.gnome.desktop.notifications");
    const QString ours = schema + QStringLiteral(".application:/org/gnome/desktop/notifications/"
                                                 "application/org-corvelle-tallyvane/");
    QCoro::Task<bool> withoutBanners =
        isGSettingFalse(program, schema, QStringLiteral("show-banners"), patience);
    QCoro::Task<bool> disabled = isGSettingFalse(program, ours, QStringLiteral("enable"), patience);
    const bool isOffForAll = co_await withoutBanners;
    const bool isOffForUs = co_await disabled;
    co_return isOffForAll || isOffForUs;
}

QDBusMessage xfceNotificationSetting(const QString& name) {
    return QDBusMessage::createMethodCall(
               QStringLiteral("org.xfce.Xfconf"), QStringLiteral("/org/xfce/Xfconf"),
               QStringLiteral("org.xfce.Xfconf"), QStringLiteral("GetProperty"))
           << QStringLiteral("xfce4-notifyd") << name;
}

QCoro::Task<bool> isOffInXfce(milliseconds patience) {
    const QDBusMessage doNotDisturb = xfceNotificationSetting(QStringLiteral("/do-not-disturb"));
    const bool isOffForAll = co_await isTrue(doNotDisturb, patience);
    const QDBusMessage muted =
        xfceNotificationSetting(QStringLiteral("/applications/muted_applications"));
    const BusValue names = co_await readBusValue(QDBusConnection::sessionBus(), muted, patience);
    bool isOffForUs = false;
    if (names && names->canConvert<QDBusArgument>()) {
        const auto list = qdbus_cast<QVariantList>(names->value<QDBusArgument>());
        isOffForUs = list.contains(QVariant(applicationName));
    }
    co_return isOffForAll || isOffForUs;
}

QCoro::Task<bool> isOffInPlasma(std::filesystem::path configHome, milliseconds patience) {
    constexpr qsizetype maximumSize = 1 << 20;
    const auto file = model::readFile(configHome / "plasmanotifyrc", maximumSize);
    const QString ours = QStringLiteral("[Applications][%1]").arg(applicationId);
    const bool isOffForUs =
        readKeyFile(file.value_or(QByteArray()), ours).value(QStringLiteral("ShowPopups")) ==
        u"false";
    const bool isOffForAll =
        co_await isTrue(daemonPropertyRead(daemonName, QStringLiteral("Inhibited")), patience);
    co_return isOffForAll || isOffForUs;
}

QCoro::Task<bool> canBeStarted(milliseconds patience) {
    const QDBusMessage question = busCall(QStringLiteral("ListActivatableNames"));
    const BusReply names = co_await callBus(QDBusConnection::sessionBus(), question, patience);
    co_return names && names->arguments().value(0).toStringList().contains(daemonName);
}

/// Where the desktops keep their settings.
struct Places {
    QStringList searchPath;
    std::filesystem::path configHome;
};

QCoro::Task<bool> areNotificationsOn(Places places, bool mayStartDaemon, milliseconds patience) {
    QDBusMessage question = daemonCall(QStringLiteral("GetServerInformation"));
    question.setAutoStartService(mayStartDaemon);
    const BusReply information =
        co_await callBus(QDBusConnection::sessionBus(), question, patience);
    if (!information) {
        if (information.error() == BusError::noService && !mayStartDaemon) {
            co_return co_await canBeStarted(patience);
        }
        co_return information.error() == BusError::failed;
    }
    const QString daemon = information->arguments().value(0).toString();
    bool isOff = false;
    if (daemon == u"dunst") {
        isOff = co_await isTrue(
            daemonPropertyRead(QStringLiteral("org.dunstproject.cmd0"), QStringLiteral("paused")),
            patience);
    } else if (daemon == u"Xfce Notify Daemon") {
        isOff = co_await isOffInXfce(patience);
    } else if (daemon == u"Plasma") {
        isOff = co_await isOffInPlasma(places.configHome, patience);
    } else if (daemon == u"gnome-shell") {
        isOff = co_await isOffInGnome(places.searchPath, patience);
    }
    co_return !isOff;
}

} // namespace

void DBusNotificationCentre::post(const Notification& notification) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    listen();
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QString(applicationId)},
                            {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
                            {QStringLiteral("urgency"), QVariant::fromValue(uchar{1})}, // normal
                            {QStringLiteral("x-tallyvane-identifier"), notification.identifier}};
    QDBusMessage call = daemonCall(QStringLiteral("Notify"));
    call.setArguments(
        {applicationName, uint{0}, QString(applicationId), notification.title, notification.body,
         QStringList{defaultAction, QCoreApplication::translate("Notification", "Open Tallyvane")},
         hints, -1});
    QCoro::connect(callBus(bus, call, m_patience), this, [this](const BusReply& id) {
        if (id && id->signature() == u"u") {
            m_tokens.insert(id->arguments().constFirst().toUInt(), {});
        }
    });
}

QCoro::Task<bool> DBusNotificationCentre::isAuthorized() {
    if (QDBusConnection::sessionBus().isConnected()) {
        listen();
    }
    const Places places{.searchPath = m_searchPath, .configHome = m_configHome};
    return areNotificationsOn(places, m_mayStartDaemon, m_patience);
}

void DBusNotificationCentre::listen() {
    if (std::exchange(m_isListening, true)) {
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto connectSignal = [&](const char* name, const char* slot) {
        bus.connect(daemonName, daemonPath, daemonName, QString::fromLatin1(name), this, slot);
    };
    connectSignal("ActivationToken", SLOT(keepToken(uint, QString)));
    connectSignal("ActionInvoked", SLOT(activate(uint, QString)));
    connectSignal("NotificationClosed", SLOT(forget(uint)));
    const auto* watcher =
        new QDBusServiceWatcher(daemonName, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        m_tokens.clear(); // a new daemon reuses the ids of the old one
        m_mayStartDaemon = false;
        Q_EMIT authorizationChanged();
    });
}

void DBusNotificationCentre::keepToken(uint id, const QString& token) {
    if (const auto shown = m_tokens.find(id); shown != m_tokens.end()) {
        *shown = token;
    }
}

void DBusNotificationCentre::activate(uint id, const QString& action) {
    if (m_tokens.contains(id) && action == defaultAction) {
        Q_EMIT activated(m_tokens.take(id));
    }
}

void DBusNotificationCentre::forget(uint id) {
    m_tokens.remove(id);
}

} // namespace tallyvane::platform

#include "moc_dbus_notification_centre.cpp"
