#include "platform/linux/status_item/status_host_watcher.h"

#include <QtCore/QFile>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusVariant>

namespace tallyvane::platform {

namespace {

// Bus name and interface in one.
constexpr QLatin1StringView watcherName{"org.kde.StatusNotifierWatcher"};
constexpr QLatin1StringView watcherPath{"/StatusNotifierWatcher"};

QDBusMessage watcherCall(const QString& owner, const QString& interface, const QString& method,
                         const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(owner, watcherPath, interface, method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage busCall(const QString& method, const QString& name) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments({name});
    return call;
}

} // namespace

StatusHostWatcher::StatusHostWatcher(const QDBusConnection& bus)
    : m_bus(bus), m_names(watcherName, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    if (!m_bus.isConnected()) {
        return;
    }
    connect(&m_names, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { takeOwner(owner); });
    for (const QString& signal : {QStringLiteral("StatusNotifierHostRegistered"),
                                  QStringLiteral("StatusNotifierHostUnregistered")}) {
        m_bus.connect({}, watcherPath, watcherName, signal, this, SLOT(askForHost()));
    }
    ask(busCall(QStringLiteral("GetNameOwner"), watcherName), [this](const QDBusMessage& owner) {
        if (owner.type() == QDBusMessage::ReplyMessage) {
            takeOwner(owner.arguments().value(0).toString());
        }
    });
}

void StatusHostWatcher::takeOwner(const QString& owner) {
    m_owner = owner;
    setAvailable(false);
    if (!owner.isEmpty()) {
        ask(busCall(QStringLiteral("GetConnectionUnixProcessID"), owner),
            [this, owner](const QDBusMessage& processId) { registerItem(owner, processId); });
    }
}

void StatusHostWatcher::registerItem(const QString& owner, const QDBusMessage& processId) {
    QFile file(QStringLiteral("/proc/%1/comm").arg(processId.arguments().value(0).toUInt()));
    // A process that cannot be seen, such as one in another container, is an unknown host.
    const QByteArray name = file.open(QIODevice::ReadOnly) ? file.readAll().chopped(1) : "";
    if (const HostProfile profile = hostProfileOf(name); profile != m_profile) {
        m_profile = profile;
        Q_EMIT profileChanged();
    }
    ask(watcherCall(owner, watcherName, QStringLiteral("RegisterStatusNotifierItem"),
                    {m_bus.baseService()}),
        [this](const QDBusMessage& answer) {
            if (answer.type() == QDBusMessage::ReplyMessage) {
                askForHost();
            }
        });
}

void StatusHostWatcher::askForHost() {
    const QString owner = m_owner.value_or(QString());
    if (owner.isEmpty()) {
        return;
    }
    ask(watcherCall(owner, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                    {QString(watcherName), QStringLiteral("IsStatusNotifierHostRegistered")}),
        [this](const QDBusMessage& answer) {
            // A watcher that took the item and has no such property is the host itself.
            setAvailable(answer.type() == QDBusMessage::ErrorMessage ||
                         answer.arguments().value(0).value<QDBusVariant>().variant().toBool());
        });
}

void StatusHostWatcher::setAvailable(bool isAvailable) {
    if (isAvailable != m_isAvailable) {
        m_isAvailable = isAvailable;
        Q_EMIT availableChanged();
    }
}

void StatusHostWatcher::ask(const QDBusMessage& question,
                            std::function<void(const QDBusMessage&)> take) {
    auto* pending = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, pending, owner = m_owner, take = std::move(take)] {
                pending->deleteLater();
                if (owner == m_owner) {
                    take(pending->reply());
                }
            });
}

} // namespace tallyvane::platform
