#include "platform/linux/system_appearance.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusVariant>

namespace tallyvane::platform {

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto plasmaGroup = QStringLiteral("org.kde.kdeglobals.KDE");

} // namespace

SystemAppearance::SystemAppearance(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        bus.connect(portal, portalPath, settings, QStringLiteral("SettingChanged"), this,
                    SLOT(onSettingChanged(QDBusMessage)));
        readAll();
    }
}

void SystemAppearance::readAll() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("ReadAll"));
    call.setArguments({QStringList{appearanceGroup, gnomeGroup, plasmaGroup}});
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        if (reply.signature() != QLatin1StringView("a{sa{sv}}")) {
            return; // an error
        }
        const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst());
        for (const auto& [group, values] : groups.asKeyValueRange()) {
            for (const auto& [key, value] : values.asKeyValueRange()) {
                take(group, key, value);
            }
        }
    });
}

void SystemAppearance::onSettingChanged(const QDBusMessage& signal) {
    if (signal.signature() == QLatin1StringView("ssv")) {
        const QVariantList arguments = signal.arguments();
        take(arguments[0].toString(), arguments[1].toString(),
             arguments[2].value<QDBusVariant>().variant());
    }
}

void SystemAppearance::take(const QString& group, const QString& key, const QVariant& value) {
    const ColourScheme schemeBefore = m_scheme;
    const bool wasMotionReduced = isMotionReduced();
    const auto takeStillness = [&](bool isWished) {
        if (isWished) {
            m_stillness.insert(key);
        } else {
            m_stillness.remove(key);
        }
    };
    if (group == appearanceGroup && key == QLatin1StringView("color-scheme")) {
        const uint number = value.toUInt();
        m_scheme = number == 1   ? ColourScheme::dark
                   : number == 2 ? ColourScheme::light
                                 : ColourScheme::noPreference;
    } else if (group == appearanceGroup && key == QLatin1StringView("reduced-motion")) {
        takeStillness(value.toUInt() == 1);
    } else if (group == gnomeGroup && key == QLatin1StringView("enable-animations")) {
        takeStillness(!value.toBool());
    } else if (group == plasmaGroup && key == QLatin1StringView("AnimationDurationFactor")) {
        takeStillness(value.toString() == QLatin1StringView("0"));
    }
    if (m_scheme != schemeBefore || isMotionReduced() != wasMotionReduced) {
        Q_EMIT changed();
    }
}

} // namespace tallyvane::platform
