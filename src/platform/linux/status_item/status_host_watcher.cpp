#include "platform/linux/status_item/status_host_watcher.h"

#include "platform/linux/bus_call.h"

#include <QtCore/QFile>

namespace tallyvane::platform {

namespace {

// The name on the bus and of the interface.
const auto watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusHostWatcher::StatusHostWatcher(const QDBusConnection& bus)
    : m_bus(bus), m_names(watcherName, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    if (!m_bus.isConnected()) {
        return;
    }
    connect(&m_names, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { takeOwner(owner); });
    // Not one question after the other: the item is to be there soon.
    ask(callBus(m_bus, busCall(QStringLiteral("GetNameOwner")) << watcherName),
        [this](const BusReply& owner) {
            if (owner) {
                m_owner = owner->arguments().value(0).toString();
            }
        });
    registerItem(watcherName);
    // In time, as the watcher is asked for a host when it has replied.
    for (const QString& signal : {QStringLiteral("StatusNotifierHostRegistered"),
                                  QStringLiteral("StatusNotifierHostUnregistered")}) {
        m_bus.connect({}, watcherPath, watcherName, signal, this, SLOT(askForHost()));
    }
}

void StatusHostWatcher::takeOwner(const QString& owner) {
    m_owner = owner;
    ++m_changes;
    setAvailable(false);
    if (!owner.isEmpty()) {
        registerItem(owner);
    }
}

void StatusHostWatcher::registerItem(const QString& watcher) {
    ask(callBus(m_bus, busCall(QStringLiteral("GetConnectionUnixProcessID")) << watcher),
        [this](const BusReply& processId) {
            takeProfile(processId ? processId->arguments().value(0).toUInt() : 0);
        });
    QDBusMessage call = QDBusMessage::createMethodCall(
        watcher, watcherPath, watcherName, QStringLiteral("RegisterStatusNotifierItem"));
    call << m_bus.baseService();
    call.setAutoStartService(false);
    ask(callBus(m_bus, call), [this](const BusReply& reply) {
        if (reply) {
            askForHost();
        }
    });
}

void StatusHostWatcher::takeProfile(uint processId) {
    QFile file(QStringLiteral("/proc/%1/comm").arg(processId));
    // A process that cannot be seen, such as one in another container, is an unknown host.
    const QByteArray name = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : "";
    const HostProfile profile = hostProfileOf(name);
    if (std::exchange(m_profile, profile) != profile) {
        Q_EMIT profileChanged();
    }
}

void StatusHostWatcher::askForHost() {
    const QString owner = m_owner.value_or(QString());
    if (owner.isEmpty()) {
        return;
    }
    const auto call = propertyRead(owner, watcherPath, watcherName,
                                   QStringLiteral("IsStatusNotifierHostRegistered"));
    ask(readBusValue(m_bus, call), [this](const BusValue& hasHost) {
        // A watcher that accepted the item but lacks the property is the host itself.
        setAvailable(!hasHost || hasHost->toBool());
    });
}

void StatusHostWatcher::setAvailable(bool isAvailable) {
    if (std::exchange(m_isAvailable, isAvailable) != isAvailable) {
        Q_EMIT availableChanged();
    }
}

template <typename Reply, typename Take>
void StatusHostWatcher::ask(QCoro::Task<Reply> call, Take take) {
    QCoro::connect(std::move(call), this,
                   [this, changes = m_changes, take = std::move(take)](const Reply& reply) {
                       if (changes == m_changes) {
                           take(reply);
                       }
                   });
}

} // namespace tallyvane::platform

#include "moc_status_host_watcher.cpp"
