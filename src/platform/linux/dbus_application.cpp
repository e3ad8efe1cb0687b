#include "platform/linux/dbus_application.h"

#include "platform/application_id.h"
#include "platform/linux/bus_call.h"
#include "platform/spawn.h"

#include <QtDBus/QDBusAbstractAdaptor>
#include <QtDBus/QDBusConnectionInterface>

namespace tallyvane::platform {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds activationTimeout = 5s;
// A refresh waits at most half a minute for the providers, and then reads the session logs.
constexpr std::chrono::milliseconds refreshTimeout = 2min;

const QString applicationPath = QStringLiteral("/org/corvelle/Tallyvane");
const QString applicationInterface = QStringLiteral("org.freedesktop.Application");
const QString controlInterface = QStringLiteral("org.corvelle.Tallyvane.Control");
const QString activationTokenKey = QStringLiteral("activation-token"); // Wayland and newer X11
const QString startupIdKey = QStringLiteral("desktop-startup-id");     // X11

std::expected<QDBusMessage, CallError> callRunning(const QString& interface, const QString& method,
                                                   const QVariantList& arguments,
                                                   std::chrono::milliseconds timeout) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(applicationId, applicationPath, interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    if (const BusReply reply = callBusAndBlock(call, timeout)) {
        return *reply;
    }
    // A time-out and an owner that ended meanwhile give the same error.
    return std::unexpected(isApplicationRunning() ? CallError::noAnswer : CallError::notRunning);
}

} // namespace

// Methods and arguments have their D-Bus names.
// NOLINTBEGIN(readability-identifier-naming,readability-inconsistent-declaration-parameter-name)

class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(DBusApplication* application)
        : QDBusAbstractAdaptor(application), m_application(application) {}

public Q_SLOTS:
    void Activate(const QVariantMap& platform_data) {
        const QString token = platform_data.value(activationTokenKey).toString();
        Q_EMIT m_application->activated(
            token.isEmpty() ? platform_data.value(startupIdKey).toString() : token);
    }

    /// The program opens no files, so this only shows its window.
    void Open(const QStringList& uris, const QVariantMap& platform_data) {
        Q_UNUSED(uris); // named for introspection
        Activate(platform_data);
    }

    void ActivateAction(const QString& action_name, const QVariantList& parameter,
                        const QVariantMap& platform_data, const QDBusMessage& call) {
        Q_UNUSED(parameter);
        Q_UNUSED(platform_data);
        if (action_name == u"refresh") {
            Q_EMIT m_application->refreshRequested();
        } else if (action_name == u"quit") {
            Q_EMIT m_application->quitRequested();
        } else {
            call.setDelayedReply(true);
            QDBusConnection::sessionBus().send(call.createErrorReply(
                QDBusError::InvalidArgs, QStringLiteral("There is no action of this name.")));
        }
    }

private:
    DBusApplication* m_application;
};

class ControlAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.corvelle.Tallyvane.Control")

public:
    ControlAdaptor(DBusApplication* application, DBusApplication::Refresh refresh)
        : QDBusAbstractAdaptor(application),
          m_application(application),
          m_refresh(std::move(refresh)) {}

public Q_SLOTS:
    bool Refresh(const QDBusMessage& call) {
        call.setDelayedReply(true);
        spawn(answer(call, &DBusApplication::RefreshAnswer::isStored));
        return false; // not sent: the reply is delayed
    }

    QString RefreshReport(const QDBusMessage& call) {
        call.setDelayedReply(true);
        spawn(answer(call, &DBusApplication::RefreshAnswer::report));
        return {};
    }

    void ReloadSettings() { Q_EMIT m_application->reloadRequested(); }

private:
    template <typename Part>
    QCoro::Task<> answer(QDBusMessage call, Part DBusApplication::RefreshAnswer::* part) {
        const DBusApplication::RefreshAnswer result = co_await m_refresh();
        QDBusConnection::sessionBus().send(call.createReply(result.*part));
    }

    DBusApplication* m_application;
    DBusApplication::Refresh m_refresh;
};

/// Declares the signals for introspection. DBusWidgetCentre sends them, from programs without this
/// object too, so nothing emits these.
class WidgetsAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.corvelle.Tallyvane.Widgets")

public:
    explicit WidgetsAdaptor(DBusApplication* application) : QDBusAbstractAdaptor(application) {}

Q_SIGNALS:
    void TimelinesReloaded(const QString& kind);
    void AllTimelinesReloaded();
};

// NOLINTEND(readability-identifier-naming,readability-inconsistent-declaration-parameter-name)

DBusApplication::DBusApplication(Refresh refresh) {
    new ApplicationAdaptor(this);
    new ControlAdaptor(this, std::move(refresh));
    new WidgetsAdaptor(this);
}

DBusApplication::Registration DBusApplication::registerOnBus() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    // First the object, then the name: a caller that started the program by its name calls at once.
    if (!bus.registerObject(applicationPath, this, QDBusConnection::ExportAdaptors)) {
        return Registration::noBus;
    }
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus.interface()->registerService(applicationId, QDBusConnectionInterface::DontQueueService,
                                         QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) {
        return Registration::noBus;
    }
    if (reply.value() != QDBusConnectionInterface::ServiceRegistered) {
        return Registration::alreadyRunning;
    }
    // QtDBus emits this locally when the connection ends, as at the end of the session.
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SIGNAL(quitRequested()));
    return Registration::owner;
}

bool isApplicationRunning() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(applicationId).value();
}

std::expected<void, CallError> activateRunning(const QString& token) {
    QVariantMap platformData;
    if (!token.isEmpty()) {
        platformData = {{activationTokenKey, token}, {startupIdKey, token}};
    }
    const auto reply = callRunning(applicationInterface, QStringLiteral("Activate"), {platformData},
                                   activationTimeout);
    if (!reply) {
        return std::unexpected(reply.error());
    }
    return {};
}

std::expected<QString, CallError> refreshRunning() {
    const auto reply =
        callRunning(controlInterface, QStringLiteral("RefreshReport"), {}, refreshTimeout);
    if (!reply) {
        return std::unexpected(reply.error());
    }
    return reply->arguments().value(0).toString();
}

std::expected<void, CallError> reloadRunning() {
    const auto reply =
        callRunning(controlInterface, QStringLiteral("ReloadSettings"), {}, activationTimeout);
    if (!reply) {
        return std::unexpected(reply.error());
    }
    return {};
}

} // namespace tallyvane::platform

#include "dbus_application.moc"
#include "moc_dbus_application.cpp"
