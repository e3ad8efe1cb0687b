#include "platform/linux/system_appearance.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusVariant>

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
                    SLOT(onSettingChanged(QDBusMessage)));
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

void SystemAppearance::onSettingChanged(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 3 && arguments.at(0) == appearanceGroup &&
        arguments.at(1) == colourSchemeKey) {
        setScheme(arguments.at(2));
    }
}

void SystemAppearance::setScheme(const QVariant& value) {
    const uint number = value.value<QDBusVariant>().variant().toUInt();
    const ColourScheme scheme = number == 1   ? ColourScheme::dark
                                : number == 2 ? ColourScheme::light
                                              : ColourScheme::noPreference;
    if (std::exchange(m_scheme, scheme) != scheme) {
        Q_EMIT colourSchemeChanged(scheme);
    }
}

} // namespace tallyvane::platform
