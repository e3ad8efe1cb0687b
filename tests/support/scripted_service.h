#pragma once

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>

#include <functional>

namespace tallyvane::tests {

/// Owns names on the session bus, on its own connection, and records the calls to all objects at
/// and below a path.
class ScriptedService final : public QDBusVirtualObject {
public:
    /// What it replies to a call; nothing if the message is invalid.
    using Script = std::function<QDBusMessage(const QDBusMessage& call)>;

    ScriptedService(const QStringList& names, const QString& path, Script script)
        : m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                              names.constFirst())),
          m_path(path),
          m_script(std::move(script)) {
        m_bus.registerVirtualObject(path, this, QDBusConnection::SubPath);
        for (const QString& name : names) {
            m_bus.registerService(name);
        }
    }
    ~ScriptedService() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        calls.append(call);
        const QDBusMessage reply = m_script(call);
        return reply.type() == QDBusMessage::InvalidMessage || bus.send(reply);
    }

    /// Emits a signal of an object below the path, or of the one at it if `object` is empty.
    void emitSignal(const char* object, const char* interface, const char* name,
                    const QVariantList& arguments = {}) {
        QDBusMessage signal =
            QDBusMessage::createSignal(m_path + QString::fromLatin1(object),
                                       QString::fromLatin1(interface), QString::fromLatin1(name));
        signal.setArguments(arguments);
        m_bus.send(signal);
    }

    QList<QDBusMessage> calls;

private:
    QDBusConnection m_bus;
    QString m_path;
    Script m_script;
};

/// A value as a reply or a signal carries it where its type is a variant.
inline QVariant variant(const QVariant& value) {
    return QVariant::fromValue(QDBusVariant(value));
}

} // namespace tallyvane::tests
