#pragma once

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>

namespace tallyvane::tests {

/// Owns names on the session bus, on its own connection, and records the calls to all objects at
/// and below a path.
class ScriptedService : public QDBusVirtualObject {
public:
    ScriptedService(const QStringList& names, const QString& path)
        : m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                              names.constFirst())),
          m_path(path) {
        m_bus.registerVirtualObject(path, this, QDBusConnection::SubPath);
        for (const QString& name : names) {
            m_bus.registerService(name);
        }
    }
    ~ScriptedService() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    /// What it replies to a call; nothing if the message is invalid.
    [[nodiscard]] virtual QDBusMessage reply(const QDBusMessage& /*call*/) const { return {}; }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        calls.append(call);
        const QDBusMessage message = reply(call);
        return message.type() == QDBusMessage::InvalidMessage || bus.send(message);
    }

    /// Emits a signal of an object below the path, or of the one at it if `object` is empty.
    void emitSignal(const QString& object, const QString& interface, const QString& name,
                    const QVariantList& arguments = {}) {
        QDBusMessage signal = QDBusMessage::createSignal(m_path + object, interface, name);
        signal.setArguments(arguments);
        m_bus.send(signal);
    }

    QList<QDBusMessage> calls;

private:
    QDBusConnection m_bus;
    QString m_path;
};

/// A value as a reply or a signal carries it where its type is a variant.
inline QVariant variant(const QVariant& value) {
    return QVariant::fromValue(QDBusVariant(value));
}

} // namespace tallyvane::tests
