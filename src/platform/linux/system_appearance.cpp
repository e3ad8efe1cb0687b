#include "platform/linux/system_appearance.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>

#include <utility>

namespace tallyvane::platform {

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colourSchemeKey = QStringLiteral("color-scheme");

} // namespace

SystemAppearance::SystemAppearance(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        bus.connect(portal, portalPath, settings, QStringLiteral("SettingChanged"), this,
                    SLOT(onSettingChanged(QString, QString, QDBusVariant)));
        read();
    }
}

void SystemAppearance::read() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
    call.setArguments({appearanceGroup, colourSchemeKey});
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (const QDBusPendingReply<QDBusVariant> reply = *watcher; !reply.isError()) {
            setScheme(reply.value().variant());
        }
    });
}

void SystemAppearance::onSettingChanged(const QString& group, const QString& key,
                                        const QDBusVariant& value) {
    if (group == appearanceGroup && key == colourSchemeKey) {
        setScheme(value.variant());
    }
}

void SystemAppearance::setScheme(const QVariant& value) {
    // Read wraps the value in one variant more than the signal does.
    const bool isWrapped = value.metaType() == QMetaType::fromType<QDBusVariant>();
    const uint number = (isWrapped ? value.value<QDBusVariant>().variant() : value).toUInt();
    const ColourScheme scheme = number == 1   ? ColourScheme::dark
                                : number == 2 ? ColourScheme::light
                                              : ColourScheme::noPreference;
    if (std::exchange(m_scheme, scheme) != scheme) {
        Q_EMIT colourSchemeChanged(scheme);
    }
}

} // namespace tallyvane::platform
