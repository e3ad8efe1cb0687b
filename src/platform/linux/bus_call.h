#pragma once

#include <QCoro/QCoroTask>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <chrono>
#include <expected>

/// Method calls on the session bus. Main thread only.
///
/// A task sends its call when it is created and resumes in the handler of the reply, so replies and
/// signals take effect in the order in which they arrive. A QObject passes the task to
/// QCoro::connect() with itself as the context, which drops the reply if the object is gone by
/// then.
namespace tallyvane::platform {

enum class BusError {
    noBus,     ///< not connected; reported at once
    noService, ///< nobody owns the name, and the bus cannot start anybody for it
    failed,    ///< an error reply, a reply of another type, or none in time
};

using BusReply = std::expected<QDBusMessage, BusError>;
using BusValue = std::expected<QVariant, BusError>;

/// Waits at most `patience` for the reply; the default is the one of D-Bus libraries.
[[nodiscard]] QCoro::Task<BusReply>
callBus(QDBusConnection bus, QDBusMessage call,
        std::chrono::milliseconds patience = std::chrono::seconds{25});

/// For methods that return one variant: what it holds.
[[nodiscard]] QCoro::Task<BusValue>
readBusValue(QDBusConnection bus, QDBusMessage call,
             std::chrono::milliseconds patience = std::chrono::seconds{25});

/// A call of the bus itself, a method of org.freedesktop.DBus.
[[nodiscard]] QDBusMessage busCall(const QString& method);

/// The call for readBusValue() that reads a property.
[[nodiscard]] QDBusMessage propertyRead(const QString& service, const QString& path,
                                        const QString& interface, const QString& property);

/// callBus() on the session bus for programs without a running event loop: blocks.
[[nodiscard]] BusReply callBusAndBlock(const QDBusMessage& call,
                                       std::chrono::milliseconds patience);

} // namespace tallyvane::platform
