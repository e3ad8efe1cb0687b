#include "platform/linux/bus_call.h"

#include <QCoro/QCoroDBusPendingCall>
#include <QtDBus/QDBusVariant>

namespace tallyvane::platform {

namespace {

BusReply replyOf(const QDBusMessage& message) {
    if (message.type() == QDBusMessage::ReplyMessage) {
        return message;
    }
    const QString error = message.errorName();
    const bool isNobodyThere = error == u"org.freedesktop.DBus.Error.ServiceUnknown" ||
                               error == u"org.freedesktop.DBus.Error.NameHasNoOwner" ||
                               error.startsWith(u"org.freedesktop.DBus.Error.Spawn.");
    return std::unexpected(isNobodyThere ? BusError::noService : BusError::failed);
}

} // namespace

QCoro::Task<BusReply> callBus(QDBusConnection bus, QDBusMessage call,
                              std::chrono::milliseconds patience) {
    if (!bus.isConnected()) {
        co_return std::unexpected(BusError::noBus);
    }
    const QDBusPendingCall pending = bus.asyncCall(call, static_cast<int>(patience.count()));
    const QDBusMessage message = co_await pending;
    co_return replyOf(message);
}

QCoro::Task<BusValue> readBusValue(QDBusConnection bus, QDBusMessage call,
                                   std::chrono::milliseconds patience) {
    const BusReply reply = co_await callBus(bus, call, patience);
    if (!reply) {
        co_return std::unexpected(reply.error());
    }
    if (reply->signature() != u"v") {
        co_return std::unexpected(BusError::failed);
    }
    co_return reply->arguments().constFirst().value<QDBusVariant>().variant();
}

QDBusMessage busCall(const QString& method) {
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    return QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                          method);
}

QDBusMessage propertyRead(const QString& service, const QString& path, const QString& interface,
                          const QString& property) {
    return QDBusMessage::createMethodCall(service, path,
                                          QStringLiteral("org.freedesktop.DBus.Properties"),
                                          QStringLiteral("Get"))
           << interface << property;
}

BusReply callBusAndBlock(const QDBusMessage& call, std::chrono::milliseconds patience) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return std::unexpected(BusError::noBus);
    }
    return replyOf(bus.call(call, QDBus::Block, static_cast<int>(patience.count())));
}

} // namespace tallyvane::platform
